#pragma once

#include <QDialog>

class DeviceTable;
class QLabel;
class QLineEdit;
class QPushButton;

/// What the dialogs have in common that ask for a hub's password: they say which hub it is about,
/// let the user make it show itself, hold a password field, and end with "Cancel" or with a button
/// that accepts.
///
/// The dialogs collect text only. Texts typed stay from one exec() to the next.
class HubDialog : public QDialog
{
    Q_OBJECT

public:
    /// The text of the password field.
    QString password() const;

    /// Renames the hub.
    void setHostName(const QString& hostName);

Q_SIGNALS:
    /// The identify button of the hub was pressed.
    void identifyButtonClicked(const QString& ipAddress);

protected:
    /// `acceptText` is the face of the accepting button.
    HubDialog(QWidget* parent, const QString& ipAddress, const QString& hostName,
              const QString& acceptText);

    /// Lays out title and hub list, then `fields` from top to bottom, then the buttons; the Tab
    /// key follows the same order. Called once, by the constructor of the dialog.
    void layOut(const QList<QWidget*>& fields);

    /// A dialog of this height whose width may change.
    void setHeight(int height);

    /// The Enter key presses the accepting button if `acceptIsDefault`, otherwise "Cancel".
    void setDefaultButton(bool acceptIsDefault);

    void showEvent(QShowEvent* event) override;

    QLineEdit* passwordEdit() const { return m_passwordEdit; }
    QPushButton* acceptButton() const { return m_acceptButton; }

private:
    void buildTitle();
    void buildHubList(const QString& ipAddress, const QString& hostName);
    void buildPasswordEdit();
    void buildButtons(const QString& acceptText);

    QLabel* m_titleLabel = nullptr;
    DeviceTable* m_hubList = nullptr;
    QLineEdit* m_passwordEdit = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_acceptButton = nullptr;
};
