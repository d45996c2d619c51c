#pragma once

#include "hubdialog.h"

/// Asks for the password of a hub. An empty one can be submitted.
class LoginDialog final : public HubDialog
{
    Q_OBJECT

public:
    LoginDialog(QWidget* parent, const QString& ipAddress, const QString& hostName);

    /// Shows or hides the line that says that the password was wrong, as setRefused() does for
    /// those who cannot see it.
    void setErrorVisible(bool visible);

protected:
    void describeFields() override;
    QString refusal() const override;

private Q_SLOTS:
    void passwordChanged(const QString& text);

private:
    QLabel* m_errorLabel = nullptr;
};
