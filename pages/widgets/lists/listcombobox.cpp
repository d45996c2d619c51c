#include "listcombobox.h"

#include <QWheelEvent>

ListComboBox::ListComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
}

void ListComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}
