#include "initialpassworddialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

namespace {

constexpr int dialogHeight = 250;
constexpr int minimumPasswordLength = 4;
constexpr int maximumPasswordLength = 16;

} // namespace

InitialPasswordDialog::InitialPasswordDialog(QWidget* parent, const QString& ipAddress,
                                             const QString& hostName)
    : HubDialog(parent, ipAddress, hostName, tr("Submit"))
{
    setObjectName(QStringLiteral("initialPasswordDialog"));
    acceptButton()->setObjectName(QStringLiteral("submitButton"));
    auto* instruction = new QLabel(tr("Please set an initial password."), this);
    instruction->setStyleSheet(QStringLiteral("color: rgb(255, 0, 0);"));
    instruction->setAlignment(Qt::AlignCenter);
    auto* account = new QLabel(tr("Device Manager Account"), this);
    account->setBuddy(passwordEdit());
    restrictPassword();
    buildConfirmation();
    layOut({instruction, account, passwordEdit(), m_confirmationEdit});
    setHeight(dialogHeight);
    connect(passwordEdit(), SIGNAL(textChanged(QString)), this, SLOT(passwordChanged()));
    connect(m_confirmationEdit, SIGNAL(textChanged(QString)), this, SLOT(passwordChanged()));
    passwordChanged();
}

void InitialPasswordDialog::passwordChanged()
{
    const bool complete =
        password().size() >= minimumPasswordLength && password() == m_confirmationEdit->text();
    acceptButton()->setEnabled(complete);
    setDefaultButton(complete);
}

void InitialPasswordDialog::restrictPassword()
{
    const QRegularExpression lettersAndDigits(QStringLiteral("[A-Za-z0-9]+"));
    passwordEdit()->setValidator(new QRegularExpressionValidator(lettersAndDigits, this));
    passwordEdit()->setMaxLength(maximumPasswordLength);
}

void InitialPasswordDialog::buildConfirmation()
{
    m_confirmationEdit = new QLineEdit(this);
    m_confirmationEdit->setObjectName(QStringLiteral("confirmationEdit"));
    m_confirmationEdit->setEchoMode(QLineEdit::Password);
    m_confirmationEdit->setPlaceholderText(tr("Please enter password again."));
    m_confirmationEdit->setAccessibleName(tr("Password again"));
}
