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
/// Sizes are in proportion to the font. Screen readers are told which hub the dialog and its fields
/// are for, and what is wrong or missing.
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

    /// Whether the hub has refused what was entered last: told to screen readers when it changes,
    /// and once more when the dialog is shown.
    void setRefused(bool refused);

Q_SIGNALS:
    /// The identify button of the hub was pressed.
    void identifyButtonClicked(const QString& ipAddress);

protected:
    /// `acceptText` is the face of the accepting button.
    HubDialog(QWidget* parent, const QString& ipAddress, const QString& hostName,
              const QString& acceptText);

    /// Lays out title and hub list, then `fields` from top to bottom, then the buttons; the Tab
    /// key follows the same order. Called once, by the constructor of the dialog.
    void buildLayout(const QList<QWidget*>& fields);

    /// A dialog whose width may change, of this height with the usual font and of one in
    /// proportion with others; higher where its fields need more.
    void setHeight(int height);

    /// Says in the description of each field what is wrong with it or missing, in the words of
    /// describe(). Called when the hub is renamed or has refused what was entered.
    virtual void describeFields() = 0;

    /// The description of `field`: the hub that it is for, then `trouble`, if any.
    void describe(QLineEdit* field, const QString& trouble) const;

    /// A field for a password.
    QLineEdit* makeField(const QString& objectName, const QString& placeholder,
                         const QString& accessibleName);

    bool isRefused() const { return m_isRefused; }
    /// What is told of a refusal.
    virtual QString refusal() const = 0;

    /// The Enter key presses the accepting button if `acceptIsDefault`, otherwise "Cancel".
    void setDefaultButton(bool acceptIsDefault);

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

    QLineEdit* passwordEdit() const { return m_passwordEdit; }
    QPushButton* acceptButton() const { return m_acceptButton; }

private:
    void buildTitle();
    void buildHubList();
    void buildButtons(const QString& acceptText);
    void nameHub();
    void scaleTitle();
    void scaleHubList();
    void scale();
    void fit();

    QString m_ipAddress;
    QString m_hostName;
    int m_height = 0; ///< with the usual font
    bool m_isRefused = false;

    QLabel* m_titleLabel = nullptr;
    DeviceTable* m_hubList = nullptr;
    QLineEdit* m_passwordEdit = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_acceptButton = nullptr;
};
