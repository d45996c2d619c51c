#pragma once

#include "hubdialog.h"

/// Asks for the password of a hub. An empty one can be submitted.
class LoginDialog : public HubDialog
{
    Q_OBJECT

public:
    LoginDialog(QWidget* parent, const QString& ipAddress, const QString& hostName);

    /// Shows or hides the line that says that the password was wrong.
    void setErrorVisible(bool visible);

private Q_SLOTS:
    void passwordChanged(const QString& text);

private:
    QLabel* m_errorLabel = nullptr;
};
