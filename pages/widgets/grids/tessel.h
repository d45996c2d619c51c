#pragma once

#include "focusmark.h"
#include "layoutpicture.h"
#include "roomlinks.h"

#include <QMap>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

class QMenu;
class TesselButton;
struct RoomBorder;

/// The picture of the rooms on which the installer combines them into one layout.
///
/// A link box between two rooms that touch joins them; a room's menu, opened with its drop-down
/// mark or a right click in it, joins it with any other room. All rooms of a combined room show
/// the colour of the lowest one.
///
/// On the keyboard the arrows move from room to room and Space opens the room's menu; Tab goes
/// on to the link boxes.
///
/// To fill it: clearAll(), setRoom() for each room, createLinkButtons().
class Tessel : public QWidget
{
    Q_OBJECT

public:
    /// `gap` and `cellSize` in pixels; the widget has a fixed size of 9 gaps and 8 cells. Read-only
    /// it opens no menus, shows no drop-down marks and takes no focus.
    Tessel(QWidget* parent, int gap, int cellSize, bool readOnly);

    /// Gives `cells` (x = column, y = row; cells off the grid are left out) to `room`.
    void setRoom(int room, const QList<QPoint>& cells);

    /// Makes the link boxes anew, one per pair of rooms that touch, all unchecked. The links
    /// themselves stay.
    void createLinkButtons();

    /// Removes rooms, link boxes and links.
    void clearAll();

    /// The layout as text, for example "1+2/3/4"; empty without rooms. Equal layouts have equal
    /// texts.
    QString roomGroupText() const;

    /// The rooms in their present colours, without numbers and marks, in the widget's size.
    QPixmap renderThumbnail() const;

    /// The highest room number, 0 without rooms.
    int maxRoomNumber() const { return m_picture.grid().highestRoom(); }

    /// The groups of two rooms and more; empty lists among them mean nothing.
    QList<QList<int>> combinedGroups() const { return m_links.groups(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private Q_SLOTS:
    void buttonClicked(bool on);
    void menuToggled(bool checked);

private:
    TesselButton* createLinkButton(const RoomBorder& border);
    void setLinked(RoomPair pair, bool linked);

    void openMenu(int room);
    void openMenuAt(int room, QPoint globalPosition);

    void setCurrentRoom(int room);
    void describeCurrentRoom();
    QStringList roomsCombinedWith(int room) const;
    void goToNeighbour(QPoint step);

    QPoint markOf(const QRect& label) const;
    QRect hotSpot(int room) const;
    void paintMarks(QPainter& painter) const;
    void paintFocus(QPainter& painter) const;

    LayoutPicture m_picture;
    bool m_readOnly;
    QMap<RoomPair, TesselButton*> m_buttons;
    RoomLinks m_links;
    int m_currentRoom = 0; ///< where the keyboard is; 0 before its first use
    FocusMark m_focusMark;
    QPointer<QMenu> m_menu;
};
