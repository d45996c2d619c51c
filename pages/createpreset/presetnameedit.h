#pragma once

#include <QLineEdit>

/// The field for the name of one combined room's preset: one line of at most 255 characters.
class PresetNameEdit : public QLineEdit
{
    Q_OBJECT

public:
    static constexpr int maxNameLength = 255;

    explicit PresetNameEdit(const QString& name, QWidget* parent = nullptr);
};
