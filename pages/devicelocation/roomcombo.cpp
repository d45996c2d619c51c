#include "roomcombo.h"

QStringList RoomCombo::choices(int rooms)
{
    QStringList texts{tr("No Assign")};
    for (int room = 1; room <= rooms; ++room) {
        texts.append(QString::number(room));
    }
    return texts;
}

RoomCombo::RoomCombo(const QStringList& choices, QWidget* parent)
    : ListComboBox(parent)
{
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
