#include "hands.h"

#include "finding.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>

#include <algorithm>

namespace {

QWindow* windowOf(const QWidget* widget)
{
    return widget->window()->windowHandle();
}

QPoint inWindow(const QWidget* widget, QPoint at)
{
    return widget->mapTo(widget->window(), at);
}

/// From where `begin` to `end` is to where it is within 0 to `room`; 0 where it is already.
int wayInto(int room, int begin, int end)
{
    return begin < 0 || end - begin > room ? begin : std::max(0, end - room);
}

/// Scrolls whatever lies around `widget` until `place` of it is in sight.
void reveal(QWidget* widget, const QRect& place)
{
    for (QWidget* around = widget->parentWidget(); around; around = around->parentWidget()) {
        auto* area = qobject_cast<QAbstractScrollArea*>(around);
        if (!area || !area->viewport()->isAncestorOf(widget)) {
            continue;
        }
        const QRect shown(widget->mapTo(area->viewport(), place.topLeft()), place.size());
        QScrollBar* across = area->horizontalScrollBar();
        across->setValue(across->value() +
                         wayInto(area->viewport()->width(), shown.left(), shown.right() + 1));
        // Lists scroll by rows, and each row is reached by itself.
        QScrollBar* down = area->verticalScrollBar();
        if (qobject_cast<QScrollArea*>(area)) {
            down->setValue(down->value() +
                           wayInto(area->viewport()->height(), shown.top(), shown.bottom() + 1));
        }
    }
    QCoreApplication::processEvents();
}

void reveal(QWidget* widget, QPoint at)
{
    reveal(widget, QRect(at, QSize(1, 1)).adjusted(-2, -2, 2, 2));
}

QPoint middleOfCell(const QTreeWidgetItem* row, int column)
{
    const QTreeWidget* table = row->treeWidget();
    const int left = table->columnViewportPosition(column);
    // Left of the middle: item widgets such as the pencil stand at the right end of a cell.
    return {left + qMin(20, table->columnWidth(column) / 2),
            table->visualItemRect(row).center().y()};
}

} // namespace

namespace Hands {

void click(QWidget* widget)
{
    click(widget, widget->rect().center());
}

void click(QWidget* widget, QPoint at)
{
    reveal(widget, at);
    QTest::mouseClick(windowOf(widget), Qt::LeftButton, Qt::NoModifier, inWindow(widget, at));
}

void clickButton(const QWidget* parent, QAnyStringView text)
{
    QWidget* button = buttonWithText(*parent, text);
    if (button == nullptr) {
        qFatal("There is no button \"%s\"", qPrintable(text.toString()));
    }
    click(button);
}

void drag(QWidget* widget, const QList<QPoint>& path)
{
    QWindow* window = windowOf(widget);
    reveal(widget, QPolygon(path).boundingRect());
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inWindow(widget, path.front()));
    // A hand moves within the first cell before it leaves it.
    QTest::mouseMove(window, inWindow(widget, path.front() + QPoint(3, 3)));
    for (const QPoint at : path) {
        QTest::mouseMove(window, inWindow(widget, at));
        QCoreApplication::processEvents();
    }
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inWindow(widget, path.back()));
}

void reach(QTreeWidgetItem* row)
{
    row->treeWidget()->scrollToItem(row);
    QCoreApplication::processEvents();
}

void clickRow(QTreeWidgetItem* row)
{
    row->treeWidget()->scrollToItem(row);
    click(row->treeWidget()->viewport(), middleOfCell(row, 0));
}

void doubleClick(QTreeWidgetItem* row, QAnyStringView header)
{
    row->treeWidget()->scrollToItem(row);
    QWidget* viewport = row->treeWidget()->viewport();
    const QPoint middle = middleOfCell(row, columnOf(*row->treeWidget(), header));
    reveal(viewport, middle);
    QTest::mouseDClick(windowOf(viewport), Qt::LeftButton, Qt::NoModifier,
                       inWindow(viewport, middle));
}

void choose(QWidget* combo, const QString& text)
{
    click(combo);
    QWidget* popup = QApplication::activePopupWidget();
    type(popup ? popup : combo, text);
    pressKey(popup ? popup : combo, Qt::Key_Return);
}

void type(QWidget* widget, const QString& text)
{
    QWindow* window = windowOf(widget);
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
}

void typeInto(QWidget* field, const QString& text)
{
    click(field);
    pressKey(field, Qt::Key_A, Qt::ControlModifier);
    type(field, text);
}

void pressKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(windowOf(widget), key, modifiers);
}

} // namespace Hands
