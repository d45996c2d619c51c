#include "initialpassworddialog.h"

#include "firstpassword.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

namespace {

constexpr int dialogHeight = 250;

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
    buildLayout({instruction, account, passwordEdit(), m_confirmationEdit});
    setHeight(dialogHeight);
    connect(passwordEdit(), SIGNAL(textChanged(QString)), this, SLOT(passwordChanged()));
    connect(m_confirmationEdit, SIGNAL(textChanged(QString)), this, SLOT(passwordChanged()));
    connect(passwordEdit(), SIGNAL(textEdited(QString)), this, SLOT(passwordEdited()));
    passwordChanged();
}

/// Another password than the one that was refused.
void InitialPasswordDialog::passwordEdited()
{
    if (isRefused()) {
        setRefused(false);
    }
}

void InitialPasswordDialog::passwordChanged()
{
    const bool complete =
        password().size() >= FirstPassword::minLength && password() == m_confirmationEdit->text();
    acceptButton()->setEnabled(complete);
    setDefaultButton(complete);
    describeFields();
}

void InitialPasswordDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !acceptButton()->isEnabled()) {
        (focusWidget() == passwordEdit() ? m_confirmationEdit : passwordEdit())->setFocus();
    } else {
        HubDialog::keyPressEvent(event);
    }
}

void InitialPasswordDialog::describeFields()
{
    describe(passwordEdit(), troubleOfPassword());
    describe(m_confirmationEdit, troubleOfConfirmation());
}

QString InitialPasswordDialog::refusal() const
{
    return tr("The hub did not take this password. Please try again.");
}

QString InitialPasswordDialog::troubleOfPassword() const
{
    if (password().size() < FirstPassword::minLength) {
        return tr("Too short: 4 to 16 letters and digits are needed.");
    }
    return isRefused() ? refusal() : QString();
}

QString InitialPasswordDialog::troubleOfConfirmation() const
{
    if (m_confirmationEdit->text().isEmpty()) {
        return tr("Still missing.");
    }
    return m_confirmationEdit->text() == password() ? QString()
                                                    : tr("The two passwords are not equal.");
}

void InitialPasswordDialog::restrictPassword()
{
    const QRegularExpression lettersAndDigits(FirstPassword::pattern());
    passwordEdit()->setValidator(new QRegularExpressionValidator(lettersAndDigits, this));
    passwordEdit()->setMaxLength(FirstPassword::maxLength);
}

void InitialPasswordDialog::buildConfirmation()
{
    m_confirmationEdit = makeField(QStringLiteral("confirmationEdit"),
                                   tr("Please enter password again."), tr("Password again"));
}
