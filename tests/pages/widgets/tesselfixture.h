#pragma once

#include "gridgeometry.h"
#include "roomcolor.h"
#include "tessel.h"
#include "tesselbutton.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

inline constexpr GridGeometry grid{1, 48};

using Cells = QList<QPoint>;

inline Cells block(int left, int top, int width, int height)
{
    Cells cells;
    for (int x = left; x < left + width; ++x) {
        for (int y = top; y < top + height; ++y) {
            cells.append({x, y});
        }
    }
    return cells;
}

/// Four rooms in the corners, two cells wide and high; 1 and 2 above, 3 and 4 below.
inline QList<Cells> fourCorners()
{
    return {block(0, 0, 2, 2), block(2, 0, 2, 2), block(0, 2, 2, 2), block(2, 2, 2, 2)};
}

/// Rooms in a row from left to right, two cells wide; the first and the third do not touch.
inline QList<Cells> inARow(int rooms)
{
    QList<Cells> cells;
    for (int room = 0; room < rooms; ++room) {
        cells.append(block(2 * room, 3, 2, 1));
    }
    return cells;
}

struct Picker : Tessel
{
    explicit Picker(const QList<Cells>& rooms, bool readOnly = false)
        : Tessel(nullptr, grid.gap, grid.cellSize, readOnly)
    {
        fill(rooms);
        show();
    }

    void fill(const QList<Cells>& rooms)
    {
        clearAll();
        for (int i = 0; i < rooms.size(); ++i) {
            setRoom(i + 1, rooms.at(i));
        }
        createLinkButtons();
        update();
    }

    QList<TesselButton*> boxes() const { return findChildren<TesselButton*>(); }

    TesselButton* box(int one, int other) const
    {
        const QString name = QStringLiteral("Link room %1 and room %2").arg(one).arg(other);
        for (TesselButton* button : boxes()) {
            if (button->accessibleName() == name) {
                return button;
            }
        }
        return nullptr;
    }

    void clickBox(int one, int other) { QTest::mouseClick(box(one, other), Qt::LeftButton); }

    /// The menus that are open.
    QList<QMenu*> menus() const
    {
        QList<QMenu*> open;
        for (QMenu* menu : findChildren<QMenu*>()) {
            if (menu->isVisible()) {
                open.append(menu);
            }
        }
        return open;
    }

    /// The entries of the only open menu.
    QStringList entries() const
    {
        QStringList texts;
        for (const QAction* action : menus().value(0)->actions()) {
            texts.append(action->text());
        }
        return texts;
    }

    QMenu* rightClick(QPoint position)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, mapToGlobal(position));
        QCoreApplication::sendEvent(this, &event);
        return menus().value(0);
    }

    void closeMenus()
    {
        for (QMenu* menu : menus()) {
            menu->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QColor colorAt(QPoint cell)
    {
        return grab().toImage().pixelColor(grid.cellRect(cell).topLeft() + QPoint(4, 4));
    }
};

inline QColor roomOwn(int room)
{
    return roomColor(room, Qt::white);
}

inline int countOf(const QImage& image, const QRect& rect, const QColor& color)
{
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}
