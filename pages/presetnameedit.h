#pragma once

#include <QLineEdit>

/// The field for the name of one combined room's preset: one line of at most 255 characters.
/// It tells when the user comes to it, so that its row can show what is being named.
class PresetNameEdit : public QLineEdit
{
    Q_OBJECT

public:
    static constexpr int maxNameLength = 255;

    explicit PresetNameEdit(const QString& name, QWidget* parent = nullptr);

Q_SIGNALS:
    void entered();

protected:
    void focusInEvent(QFocusEvent* event) override;
};
