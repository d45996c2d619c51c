#include "devicenamedialog.h"

#include "devicenamevalidator.h"
#include "devicetexts.h"
#include "dialogplace.h"
#include "fontscale.h"
#include "readablecolors.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int editWidth = 300;

} // namespace

DeviceNameDialog::DeviceNameDialog(const QString& name, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Change Name"));
    createWidgets();
    buildLayout();
    new DialogPlace(this);
    restrictEdits(name);
    connect(m_nameEdit, SIGNAL(textChanged(QString)), this, SLOT(nameChanged()));
    connect(m_okButton, SIGNAL(clicked()), this, SLOT(accept()));
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(reject()));
    m_nameEdit->setText(name);
    m_nameEdit->selectAll();
    nameChanged();
}

QString DeviceNameDialog::name() const
{
    return m_nameEdit->text();
}

void DeviceNameDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        m_nameEdit->setMinimumWidth(scaledToFont(editWidth, this));
    }
    QDialog::changeEvent(event);
}

void DeviceNameDialog::nameChanged()
{
    m_okButton->setEnabled(m_nameEdit->hasAcceptableInput());
}

void DeviceNameDialog::createWidgets()
{
    m_nameEdit = new QLineEdit(this);
    m_nameEdit->setObjectName(QStringLiteral("nameEdit"));
    m_nameEdit->setMaxLength(maxDeviceNameLength);
    m_nameEdit->setMinimumWidth(scaledToFont(editWidth, this));
    new ReadableColors(m_nameEdit);
    m_okButton = new QPushButton(tr("OK"), this);
    m_okButton->setObjectName(QStringLiteral("okButton"));
    m_okButton->setDefault(true);
    m_cancelButton = new QPushButton(tr("Cancel"), this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
}

void DeviceNameDialog::restrictEdits(const QString& name)
{
    auto* validator = new DeviceNameValidator(name, m_nameEdit);
    m_nameEdit->setValidator(validator);
    connect(m_nameEdit, SIGNAL(textChanged(QString)), validator, SLOT(textShown(QString)));
}

void DeviceNameDialog::buildLayout()
{
    auto* label = new QLabel(tr("Enter device name"), this);
    label->setBuddy(m_nameEdit);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(m_okButton, QDialogButtonBox::AcceptRole);
    buttons->addButton(m_cancelButton, QDialogButtonBox::RejectRole);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_nameEdit);
    layout->addWidget(buttons);
}
