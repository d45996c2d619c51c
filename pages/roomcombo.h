#pragma once

#include <QComboBox>

/// The choice of a device's room: index 0 is "No Assign", index k is room k.
///
/// The wheel scrolls the table that the combo stands in and never changes the choice: a thousand
/// devices are scrolled past with the pointer over these combos.
class RoomCombo : public QComboBox
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

protected:
    void wheelEvent(QWheelEvent* event) override;
};
