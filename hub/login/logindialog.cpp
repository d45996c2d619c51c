#include "logindialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int dialogHeight = 220;

} // namespace

LoginDialog::LoginDialog(QWidget* parent, const QString& ipAddress, const QString& hostName)
    : HubDialog(parent, ipAddress, hostName, tr("Login"))
{
    setObjectName(QStringLiteral("loginDialog"));
    acceptButton()->setObjectName(QStringLiteral("loginButton"));
    auto* label = new QLabel(tr("Login:"), this);
    label->setBuddy(passwordEdit());
    m_errorLabel = new QLabel(tr("The password you entered is incorrect. Please try again."), this);
    m_errorLabel->setObjectName(QStringLiteral("errorLabel"));
    m_errorLabel->setStyleSheet(
        QStringLiteral("color: rgb(255, 255, 255);\nbackground-color: rgb(255, 0, 0);"));
    m_errorLabel->hide();
    buildLayout({label, m_errorLabel, passwordEdit()});
    setHeight(dialogHeight);
    connect(passwordEdit(), SIGNAL(textChanged(QString)), this, SLOT(passwordChanged(QString)));
    passwordChanged(password());
    describeFields();
}

void LoginDialog::setErrorVisible(bool visible)
{
    m_errorLabel->setVisible(visible);
    setRefused(visible);
}

void LoginDialog::describeFields()
{
    describe(passwordEdit(), isRefused() ? refusal() : QString());
}

QString LoginDialog::refusal() const
{
    return m_errorLabel->text();
}

void LoginDialog::passwordChanged(const QString& text)
{
    setDefaultButton(!text.isEmpty());
}
