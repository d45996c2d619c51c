#include "hubdialog.h"

#include "devicetable.h"
#include "dialogplace.h"
#include "fontscale.h"
#include "readablecolors.h"

#include <QAccessible>
#include <QFont>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// With the usual font.
constexpr int minDialogWidth = 450;
constexpr int maxDialogWidth = 1200;
constexpr double titlePoints = 16.0;
constexpr int nameWidth = 250;
constexpr int identifyWidth = 25;

enum Column
{
    AddressColumn = DeviceTable::IdentifyColumn + 1
};

} // namespace

QString HubDialog::password() const
{
    return m_passwordEdit->text();
}

void HubDialog::setHostName(const QString& hostName)
{
    m_hostName = hostName;
    nameHub();
    describeFields();
}

void HubDialog::setRefused(bool refused)
{
    m_isRefused = refused;
    setAccessibleDescription(refused ? refusal() : QString());
    describeFields();
}

HubDialog::HubDialog(QWidget* parent, const QString& ipAddress, const QString& hostName,
                     const QString& acceptText)
    : QDialog(parent)
    , m_ipAddress(ipAddress)
    , m_hostName(hostName)
{
    setWindowTitle(tr("Login"));
    buildTitle();
    buildHubList();
    m_passwordEdit = makeField(QStringLiteral("passwordEdit"), tr("Password"), tr("Password"));
    m_passwordEdit->setFocus();
    buildButtons(acceptText);
    nameHub();
    new DialogPlace(this);
}

void HubDialog::buildLayout(const QList<QWidget*>& fields)
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
    m_height = height;
    scale();
}

void HubDialog::describe(QLineEdit* field, const QString& trouble) const
{
    const QString hub = tr("For %1 at %2.").arg(m_hostName, m_ipAddress);
    const QString text = trouble.isEmpty() ? hub : hub + u' ' + trouble;
    // Set anew, the same text would be read out again with each letter that is typed.
    if (field->accessibleDescription() != text) {
        field->setAccessibleDescription(text);
    }
}

QLineEdit* HubDialog::makeField(const QString& objectName, const QString& placeholder,
                                const QString& accessibleName)
{
    auto* field = new QLineEdit(this);
    field->setObjectName(objectName);
    field->setEchoMode(QLineEdit::Password);
    field->setPlaceholderText(placeholder);
    field->setAccessibleName(accessibleName);
    new ReadableColors(field);
    return field;
}

void HubDialog::setDefaultButton(bool acceptIsDefault)
{
    (acceptIsDefault ? m_acceptButton : m_cancelButton)->setDefault(true);
}

bool HubDialog::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        fit();
    }
    return QDialog::event(event);
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
    if (m_isRefused) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void HubDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        scale();
    }
    QDialog::changeEvent(event);
}

void HubDialog::buildTitle()
{
    m_titleLabel = new QLabel(tr("PX-HB Device Manager"), this);
    m_titleLabel->setObjectName(QStringLiteral("titleLabel"));
}

void HubDialog::buildHubList()
{
    m_hubList = new DeviceTable({tr("Hostname"), QString(), tr("IP Address")}, AddressColumn, this);
    m_hubList->setObjectName(QStringLiteral("hubList"));
    m_hubList->setAccessibleName(tr("Hub"));
    // What tells hubs apart often stands at the end of their names.
    m_hubList->setTextElideMode(Qt::ElideMiddle);
    m_hubList->setRows({{m_hostName, QString(), m_ipAddress}});
    new ReadableColors(m_hubList);
    connect(m_hubList, SIGNAL(identifyClicked(QString)), this,
            SIGNAL(identifyButtonClicked(QString)));
}

void HubDialog::buildButtons(const QString& acceptText)
{
    m_cancelButton = new QPushButton(tr("Cancel"), this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(reject()));
    m_acceptButton = new QPushButton(acceptText, this);
    connect(m_acceptButton, SIGNAL(clicked()), this, SLOT(accept()));
}

void HubDialog::nameHub()
{
    QTreeWidgetItem* row = m_hubList->topLevelItem(0);
    m_hubList->setLabel(row, m_hostName);
    row->setToolTip(DeviceTable::LabelColumn, m_hostName);
    setAccessibleName(tr("Login to %1 at %2").arg(m_hostName, m_ipAddress));
}

void HubDialog::scale()
{
    scaleTitle();
    scaleHubList();
    fit();
}

void HubDialog::fit()
{
    const QSize least = scaledToFont(QSize(minDialogWidth, m_height), this);
    // Letters and frames of some desktops are higher than the font tells.
    const int height = std::max(least.height(), layout()->totalMinimumSize().height());
    setMinimumSize(least.width(), height);
    setMaximumSize(scaledToFont(maxDialogWidth, this), height);
}

void HubDialog::scaleTitle()
{
    QFont larger = font();
    larger.setPointSizeF(titlePoints * fontScale(this));
    larger.setWeight(QFont::Bold);
    m_titleLabel->setFont(larger);
}

void HubDialog::scaleHubList()
{
    m_hubList->setColumnWidth(DeviceTable::LabelColumn, scaledToFont(nameWidth, this));
    m_hubList->setColumnWidth(DeviceTable::IdentifyColumn, scaledToFont(identifyWidth, this));
    // The height of the dialog is fixed: the list must not claim more than its one row.
    m_hubList->setMinimumHeight(m_hubList->header()->sizeHint().height() +
                                m_hubList->sizeHintForRow(0) + 2 * m_hubList->frameWidth());
}
