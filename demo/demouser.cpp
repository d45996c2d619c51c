#include "demouser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>

namespace {

QWindow* windowOf(const QWidget* widget)
{
    return widget->window()->windowHandle();
}

QPoint inWindow(const QWidget* widget, const QPoint& at)
{
    return widget->mapTo(widget->window(), at);
}

QPoint middleOfCell(QTreeWidget* tree, QTreeWidgetItem* item, int column)
{
    tree->scrollToItem(item);
    const QRect row = tree->visualItemRect(item);
    const int left = tree->columnViewportPosition(column);
    // Left of the middle: item widgets such as the pencil stand at the right end of a cell.
    return {left + qMin(20, tree->columnWidth(column) / 2), row.center().y()};
}

} // namespace

namespace DemoUser {

void click(QWidget* widget)
{
    click(widget, widget->rect().center());
}

void click(QWidget* widget, const QPoint& at)
{
    QTest::mouseClick(windowOf(widget), Qt::LeftButton, Qt::NoModifier, inWindow(widget, at));
}

void drag(QWidget* widget, const QList<QPoint>& path)
{
    QWindow* window = windowOf(widget);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inWindow(widget, path.front()));
    // A hand moves within the first cell before it leaves it.
    QTest::mouseMove(window, inWindow(widget, path.front() + QPoint(3, 3)));
    for (const QPoint& at : path) {
        QTest::mouseMove(window, inWindow(widget, at));
        QCoreApplication::processEvents();
    }
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inWindow(widget, path.back()));
}

void doubleClickCell(QTreeWidget* tree, QTreeWidgetItem* item, int column)
{
    QWidget* viewport = tree->viewport();
    QTest::mouseDClick(windowOf(viewport), Qt::LeftButton, Qt::NoModifier,
                       inWindow(viewport, middleOfCell(tree, item, column)));
}

void clickRow(QTreeWidget* tree, QTreeWidgetItem* item)
{
    click(tree->viewport(), middleOfCell(tree, item, 0));
}

void choose(QComboBox* combo, const QString& text)
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

void pressKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(windowOf(widget), key, modifiers);
}

} // namespace DemoUser
