#include "roomtext.h"

#include "roomgrid.h"

namespace {

constexpr int side = RoomInfo::gridSide;

QChar letterOf(int room)
{
    return room > 0 && room <= RoomInfo::maxRooms ? QChar(u'0' + room) : RoomText::empty;
}

int roomOf(QChar letter)
{
    return letter == RoomText::empty ? 0 : letter.unicode() - u'0';
}

bool isLetter(QChar letter)
{
    return letter == RoomText::empty || (letter >= u'1' && letter <= letterOf(RoomInfo::maxRooms));
}

QString faultOfRow(const QString& row)
{
    if (row.size() != side) {
        return QStringLiteral("%1 characters; a row has %2").arg(row.size()).arg(side);
    }
    for (const QChar letter : row) {
        if (!isLetter(letter)) {
            return QStringLiteral("\"%1\" is no room; rooms are 1 to %2, and \"%3\" is none")
                .arg(letter)
                .arg(RoomInfo::maxRooms)
                .arg(RoomText::empty);
        }
    }
    return {};
}

} // namespace

QStringList RoomText::write(const QList<RoomInfo>& rooms)
{
    QStringList rows(side, QString(side, empty));
    for (const RoomInfo& room : rooms) {
        for (const QPoint cell : room.positionList) {
            rows[cell.y()][cell.x()] = letterOf(room.number);
        }
    }
    return rows;
}

QList<RoomInfo> RoomText::read(const QStringList& rows)
{
    RoomGrid grid;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            grid.set({x, y}, roomOf(rows.at(y).at(x)));
        }
    }
    QList<RoomInfo> rooms;
    for (int number = 1; number <= grid.highestRoom(); ++number) {
        const QList<QPoint> cells = grid.cellsOf(number);
        if (!cells.isEmpty()) {
            rooms.append({number, cells});
        }
    }
    return rooms;
}

QString RoomText::fault(const QStringList& rows)
{
    if (rows.size() != side) {
        return QStringLiteral("%1 rows; there are %2").arg(rows.size()).arg(side);
    }
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const QString fault = faultOfRow(rows.at(row));
        if (!fault.isEmpty()) {
            return QStringLiteral("row %1: ").arg(row + 1) + fault;
        }
    }
    return {};
}
