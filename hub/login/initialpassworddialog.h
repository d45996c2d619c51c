#pragma once

#include "hubdialog.h"

/// Asks for the first password of a hub that has none yet, twice. It can be submitted once both
/// texts are the same and long enough; until then the fields tell screen readers what is missing.
class InitialPasswordDialog final : public HubDialog
{
    Q_OBJECT

public:
    InitialPasswordDialog(QWidget* parent, const QString& ipAddress, const QString& hostName);

protected:
    /// Return goes to the other field until what is in them can be submitted; "Cancel", then the
    /// default button, would leave the hub out.
    void keyPressEvent(QKeyEvent* event) override;
    void describeFields() override;
    QString refusal() const override;

private Q_SLOTS:
    void passwordChanged();
    void passwordEdited();

private:
    void restrictPassword();
    void buildConfirmation();
    QString troubleOfPassword() const;
    QString troubleOfConfirmation() const;

    QLineEdit* m_confirmationEdit = nullptr;
};
