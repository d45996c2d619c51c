#pragma once

#include "hubdialog.h"

/// Asks for the first password of a hub that has none yet, twice. It can be submitted once both
/// texts are the same and long enough.
class InitialPasswordDialog : public HubDialog
{
    Q_OBJECT

public:
    InitialPasswordDialog(QWidget* parent, const QString& ipAddress, const QString& hostName);

private Q_SLOTS:
    void passwordChanged();

private:
    void restrictPassword();
    void buildConfirmation();

    QLineEdit* m_confirmationEdit = nullptr;
};
