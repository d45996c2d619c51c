#include "tablefixtures.h"

#include "layoutqueries.h"

#include <QLabel>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

void addColouredLayout(IDocAccessor& doc, int number, const QString& roomGroup,
                       const QColor& picture)
{
    QPixmap thumbnail(64, 64);
    thumbnail.fill(picture);
    QVERIFY(addLayout(doc, {number, roomGroup, thumbnail}));
}

QTreeWidget* tableOf(const QWidget& parent, const char* name)
{
    auto* table = parent.findChild<QTreeWidget*>(QLatin1String(name));
    Q_ASSERT_X(table != nullptr, "tableOf", name);
    return table;
}

QWidget* shownPanel(const QWidget& page)
{
    return page.findChild<QStackedWidget*>()->currentWidget();
}

void clickRow(QTreeWidget* table, int row)
{
    QTreeWidgetItem* item = table->topLevelItem(row);
    table->scrollToItem(item);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualItemRect(item).topLeft() + QPoint(4, 4));
}

void selectGroup(const QWidget& page, int row)
{
    clickRow(tableOf(page, "roomGroupList"), row);
}

QTreeWidgetItem* rowWith(const QTreeWidget& table, int column, const QString& text)
{
    const auto found = table.findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive, column);
    return found.isEmpty() ? nullptr : found.first();
}

QStringList columnTexts(const QTreeWidget& table, int column)
{
    QStringList texts;
    for (int row = 0; row < table.topLevelItemCount(); ++row) {
        texts.append(table.topLevelItem(row)->text(column));
    }
    return texts;
}

QColor shownPicture(const QWidget& parent)
{
    const QPixmap picture = parent.findChild<QLabel*>(QStringLiteral("thumbnailLabel"))->pixmap();
    return picture.isNull() ? QColor() : picture.toImage().pixelColor(0, 0);
}
