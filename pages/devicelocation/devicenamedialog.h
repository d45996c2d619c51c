#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

/// Asks for a new name of one device: letters, digits and hyphens, 1 to 64 characters.
/// Accepted only with such a name, or with the present label as it was unless that is empty.
class DeviceNameDialog : public QDialog
{
    Q_OBJECT

public:
    /// Opens on `name`, the device's present label, selected so that typing replaces it.
    explicit DeviceNameDialog(const QString& name, QWidget* parent = nullptr);

    /// What stands in the line edit.
    QString name() const;

private Q_SLOTS:
    void nameChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void createWidgets();
    void buildLayout();
    void restrictEdits(const QString& name);

    QLineEdit* m_nameEdit = nullptr;
    QPushButton* m_okButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
};
