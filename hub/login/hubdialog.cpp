#include "hubdialog.h"

#include "devicetable.h"

#include <QFont>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int minimumDialogWidth = 450;
constexpr int maximumDialogWidth = 1200;
constexpr int titlePoints = 16;
constexpr int nameWidth = 250;
constexpr int identifyWidth = 25;
constexpr int addressColumn = 2;

} // namespace

QString HubDialog::password() const
{
    return m_passwordEdit->text();
}

void HubDialog::setHostName(const QString& hostName)
{
    m_hubList->setLabel(m_hubList->topLevelItem(0), hostName);
}

HubDialog::HubDialog(QWidget* parent, const QString& ipAddress, const QString& hostName,
                     const QString& acceptText)
    : QDialog(parent)
{
    setWindowTitle(tr("Login"));
    buildTitle();
    buildHubList(ipAddress, hostName);
    buildPasswordEdit();
    buildButtons(acceptText);
}

void HubDialog::layOut(const QList<QWidget*>& fields)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_titleLabel, 0, Qt::AlignHCenter);
    layout->addWidget(m_hubList, 1);
    QWidget* last = m_hubList->itemWidget(m_hubList->topLevelItem(0), DeviceTable::IdentifyColumn);
    for (QWidget* field : fields) {
        layout->addWidget(field);
        if (field->focusPolicy() != Qt::NoFocus) {
            setTabOrder(last, field);
            last = field;
        }
    }
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    row->addWidget(m_cancelButton);
    row->addStretch();
    row->addWidget(m_acceptButton);
    setTabOrder(last, m_cancelButton);
    setTabOrder(m_cancelButton, m_acceptButton);
}

void HubDialog::setHeight(int height)
{
    setMinimumSize(minimumDialogWidth, height);
    setMaximumSize(maximumDialogWidth, height);
}

void HubDialog::setDefaultButton(bool acceptIsDefault)
{
    (acceptIsDefault ? m_acceptButton : m_cancelButton)->setDefault(true);
}

void HubDialog::showEvent(QShowEvent* event)
{
    // A second prompt would otherwise begin on the button that ended the first.
    m_passwordEdit->setFocus();
    // A field remembers what was typed at each earlier prompt, to undo it; set anew, it forgets.
    for (QLineEdit* field : findChildren<QLineEdit*>()) {
        field->setText(field->text());
    }
    QDialog::showEvent(event);
}

void HubDialog::buildTitle()
{
    m_titleLabel = new QLabel(tr("PX-HB Device Manager"), this);
    m_titleLabel->setObjectName(QStringLiteral("titleLabel"));
    QFont font = m_titleLabel->font();
    font.setPointSize(titlePoints);
    font.setWeight(QFont::Bold);
    m_titleLabel->setFont(font);
}

void HubDialog::buildHubList(const QString& ipAddress, const QString& hostName)
{
    m_hubList = new DeviceTable({tr("Hostname"), QString(), tr("IP Address")}, addressColumn, this);
    m_hubList->setObjectName(QStringLiteral("hubList"));
    m_hubList->setAccessibleName(tr("Hub"));
    m_hubList->setColumnWidth(DeviceTable::LabelColumn, nameWidth);
    m_hubList->setColumnWidth(DeviceTable::IdentifyColumn, identifyWidth);
    m_hubList->setRows({{hostName, QString(), ipAddress}});
    // The height of the dialog is fixed: the list must not claim more than its one row.
    m_hubList->setMinimumHeight(m_hubList->header()->sizeHint().height() +
                                m_hubList->sizeHintForRow(0) + 2 * m_hubList->frameWidth());
    connect(m_hubList, SIGNAL(identifyClicked(QString)), this,
            SIGNAL(identifyButtonClicked(QString)));
}

void HubDialog::buildPasswordEdit()
{
    m_passwordEdit = new QLineEdit(this);
    m_passwordEdit->setObjectName(QStringLiteral("passwordEdit"));
    m_passwordEdit->setEchoMode(QLineEdit::Password);
    m_passwordEdit->setPlaceholderText(tr("Password"));
    m_passwordEdit->setAccessibleName(tr("Password"));
    m_passwordEdit->setFocus();
}

void HubDialog::buildButtons(const QString& acceptText)
{
    m_cancelButton = new QPushButton(tr("Cancel"), this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(reject()));
    m_acceptButton = new QPushButton(acceptText, this);
    connect(m_acceptButton, SIGNAL(clicked()), this, SLOT(accept()));
}
