#pragma once

#include <QObject>

class RowList;

/// Ctrl+0 to Ctrl+4 in a list of devices: choose the room of the row that the keyboard is in, as a
/// hand would in its room combo, and go one row down. Ctrl+0 takes the device out of its room; a
/// room that the combo does not offer changes nothing. A key that is held down counts once.
class RoomKeys : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `list`, whose rows have their RoomCombo in `roomColumn`.
    RoomKeys(RowList* list, int roomColumn);

    /// What is said of the keys where there are `rooms` rooms; nothing without rooms.
    static QString explanation(int rooms);

private Q_SLOTS:
    void keyPressed();

private:
    void choose(int room);

    RowList* m_list;
    int m_roomColumn;
};
