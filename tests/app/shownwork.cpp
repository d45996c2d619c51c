#include "wizarduser.h"

#include "finding.h"
#include "removebutton.h"
#include "roomeditor.h"
#include "sceneitem.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>

namespace {

QString number(int value)
{
    return QString::number(value);
}

QString textOf(QWidget* widget)
{
    if (const auto* box = qobject_cast<QComboBox*>(widget)) {
        return box->currentText();
    }
    if (const auto* button = qobject_cast<RemoveButton*>(widget)) {
        return button->isRemoved() ? QStringLiteral("removed") : QStringLiteral("kept");
    }
    return {};
}

/// One text per row: its columns and what stands in its widgets.
QStringList rowsOf(const QTreeWidget& table)
{
    QStringList rows;
    for (int i = 0; i < table.topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = table.topLevelItem(i);
        QStringList texts;
        for (int column = 0; column < table.columnCount(); ++column) {
            texts.append(item->text(column) + textOf(table.itemWidget(item, column)));
        }
        rows.append(texts.join(u'|'));
    }
    return rows;
}

QStringList roomsOn(const QWidget& page)
{
    QStringList rooms;
    const auto* editor = page.findChild<RoomEditor*>(QStringLiteral("roomEditor"));
    for (int room = 1; room <= 4; ++room) {
        QString cells = number(room) + u':';
        for (const QPoint cell : editor->cellsOf(room)) {
            cells += QStringLiteral(" %1,%2").arg(cell.x()).arg(cell.y());
        }
        rooms.append(cells);
    }
    return rooms;
}

QStringList layoutsOn(const QWidget& page)
{
    QStringList layouts;
    const QTreeWidget* list = tableOf(page, "layoutList");
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = list->topLevelItem(i);
        const auto* item = qobject_cast<SceneItem*>(list->itemWidget(row, 1));
        const QImage picture = item->thumbnail().toImage().convertToFormat(QImage::Format_RGB32);
        const auto hash = qHashBits(picture.constBits(), size_t(picture.sizeInBytes()));
        layouts.append(row->text(0) + u' ' + item->roomGroup() + u' ' + QString::number(hash));
    }
    return layouts;
}

QStringList panelsOn(const QWidget& page, const QList<const char*>& tables)
{
    QTreeWidget* groups = tableOf(page, "roomGroupList");
    QStringList rows = rowsOf(*groups);
    for (int i = 0; i < groups->topLevelItemCount(); ++i) {
        groups->setCurrentItem(groups->topLevelItem(i));
        for (const char* name : tables) {
            rows += rowsOf(*tableOf(*shownPanel(page), name));
        }
    }
    return rows;
}

QStringList namesOn(const QWidget& page)
{
    QStringList names = rowsOf(*tableOf(page, "roomGroupList"));
    for (const QLineEdit* field : page.findChildren<QLineEdit*>()) {
        names.append(field->text());
    }
    return names;
}

} // namespace

QStringList WizardUser::shown(int number) const
{
    const QWidget& page = *this->page(number);
    switch (number) {
    case 2:
        return roomsOn(page);
    case 3:
        return rowsOf(*tableOf(page, "hubTable")) + rowsOf(*tableOf(page, "peripheralTable")) +
               rowsOf(*tableOf(page, "summaryTable"));
    case 4:
        return layoutsOn(page);
    case 5:
        return panelsOn(page, {"hubTable", "peripheralTable", "summaryTable"});
    case 6:
        return panelsOn(page, {"speakerTable"});
    case 7:
        return namesOn(page);
    case 8:
        return rowsOf(*tableOf(page, "hubList"));
    default:
        return {};
    }
}

QList<QStringList> WizardUser::shownUpTo(int number) const
{
    QList<QStringList> pages;
    for (int i = 1; i <= number; ++i) {
        pages.append(shown(i));
    }
    return pages;
}
