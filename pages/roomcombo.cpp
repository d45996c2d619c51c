#include "roomcombo.h"

#include <QWheelEvent>

QStringList RoomCombo::choices(int rooms)
{
    QStringList texts{tr("No Assign")};
    for (int room = 1; room <= rooms; ++room) {
        texts.append(QString::number(room));
    }
    return texts;
}

RoomCombo::RoomCombo(const QStringList& choices, QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    addItems(choices);
}

int RoomCombo::room() const
{
    return currentIndex();
}

void RoomCombo::setRoom(int room)
{
    setCurrentIndex(room > 0 && room < count() ? room : 0);
}

void RoomCombo::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}
