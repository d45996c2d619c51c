#pragma once

#include "listcombobox.h"

/// The choice of a device's room: index 0 is "No Assign", index k is room k.
class RoomCombo : public ListComboBox
{
    Q_OBJECT

public:
    /// The texts for `rooms` rooms, made once for all combos of a page.
    static QStringList choices(int rooms);

    explicit RoomCombo(const QStringList& choices, QWidget* parent = nullptr);

    /// The room chosen, 0 for none.
    int room() const;
    /// Chooses `room`; a room that there is not falls back to none.
    void setRoom(int room);
};
