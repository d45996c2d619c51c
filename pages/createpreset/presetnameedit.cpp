#include "presetnameedit.h"

PresetNameEdit::PresetNameEdit(const QString& name, QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("presetNameEdit"));
    setMaxLength(maxNameLength);
    setText(name);
    setCursorPosition(0);
}
