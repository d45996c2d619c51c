#include "hands.h"

#include "finding.h"

#include <QApplication>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>

namespace {

QWindow* windowOf(const QWidget* widget)
{
    return widget->window()->windowHandle();
}

QPoint inWindow(const QWidget* widget, QPoint at)
{
    return widget->mapTo(widget->window(), at);
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
    const QWidget* viewport = row->treeWidget()->viewport();
    const QPoint middle = middleOfCell(row, columnOf(*row->treeWidget(), header));
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
