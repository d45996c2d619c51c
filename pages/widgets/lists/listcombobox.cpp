#include "listcombobox.h"

#include <QWheelEvent>

ListComboBox::ListComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
}

void ListComboBox::setPurpose(const QString& purpose)
{
    setAccessibleName(purpose);
    setAccessibleDescription(toolTip().isEmpty() ? purpose
                                                 : purpose + QStringLiteral(". ") + toolTip());
}

void ListComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}
