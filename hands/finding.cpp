#include "finding.h"

#include <QApplication>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>

namespace {

QList<QTreeWidgetItem*> rowsOf(const QTreeWidget& table)
{
    QList<QTreeWidgetItem*> rows;
    for (int row = 0; row < table.topLevelItemCount(); ++row) {
        rows.append(table.topLevelItem(row));
    }
    return rows;
}

/// Of several with the name the visible one: panels that are not shown have tables too.
template <typename Widget>
Widget* require(const QWidget& parent, QAnyStringView name)
{
    const auto found = parent.findChildren<Widget*>(name.toString());
    for (Widget* widget : found) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    if (found.isEmpty()) {
        qFatal("There is no \"%s\" on \"%s\"", qPrintable(name.toString()),
               qPrintable(parent.objectName()));
    }
    return found.first();
}

bool isNamed(const QWidget* widget, const QString& beginning)
{
    return widget != nullptr && widget->accessibleName().startsWith(beginning);
}

} // namespace

QWidget* wizardWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("MainWindow") && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

QWidget* shownPage(const QWidget& window)
{
    return require<QStackedWidget>(window, "pageStack")->currentWidget();
}

QWidget* shownPanel(const QWidget& page)
{
    return page.findChild<QStackedWidget*>()->currentWidget();
}

QWidget* widgetOf(const QWidget& parent, QAnyStringView name)
{
    return require<QWidget>(parent, name);
}

QPushButton* buttonOf(const QWidget& parent, QAnyStringView name)
{
    return require<QPushButton>(parent, name);
}

QTreeWidget* tableOf(const QWidget& parent, QAnyStringView name)
{
    return require<QTreeWidget>(parent, name);
}

QWidget* buttonWithText(const QWidget& parent, QAnyStringView text)
{
    for (auto* button : parent.findChildren<QAbstractButton*>()) {
        if (button->text().remove(u'&') == text.toString()) {
            return button;
        }
    }
    return nullptr;
}

QWidget* namedWidget(const QWidget& parent, QAnyStringView beginning)
{
    for (auto* widget : parent.findChildren<QWidget*>()) {
        if (isNamed(widget, beginning.toString())) {
            return widget;
        }
    }
    return nullptr;
}

int columnOf(const QTreeWidget& table, QAnyStringView header)
{
    for (int column = 0; column < table.columnCount(); ++column) {
        if (table.headerItem()->text(column) == header.toString()) {
            return column;
        }
    }
    qFatal("There is no column \"%s\" in \"%s\"", qPrintable(header.toString()),
           qPrintable(table.objectName()));
}

QTreeWidgetItem* rowWith(const QTreeWidget& table, QAnyStringView header, const QString& text)
{
    return table.findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive, columnOf(table, header))
        .value(0);
}

QStringList columnTexts(const QTreeWidget& table, QAnyStringView header)
{
    QStringList texts;
    for (const QTreeWidgetItem* row : rowsOf(table)) {
        texts.append(textIn(*row, header));
    }
    return texts;
}

QString textIn(const QTreeWidgetItem& row, QAnyStringView header)
{
    return row.text(columnOf(*row.treeWidget(), header));
}

QWidget* widgetIn(QTreeWidgetItem* row, QAnyStringView header)
{
    const QTreeWidget& table = *row->treeWidget();
    QWidget* widget = table.itemWidget(row, columnOf(table, header));
    if (widget == nullptr) {
        qFatal("Nothing to use in the column \"%s\"", qPrintable(header.toString()));
    }
    return widget;
}

QWidget* namedWidgetIn(QTreeWidgetItem* row, QAnyStringView beginning)
{
    const QTreeWidget& table = *row->treeWidget();
    for (int column = 0; column < table.columnCount(); ++column) {
        QWidget* widget = table.itemWidget(row, column);
        if (isNamed(widget, beginning.toString())) {
            return widget;
        }
        QWidget* inside = widget != nullptr ? namedWidget(*widget, beginning) : nullptr;
        if (inside != nullptr) {
            return inside;
        }
    }
    return nullptr;
}
