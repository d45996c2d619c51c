#include "roomgrouplist.h"

#include "columnwidths.h"
#include "contrast.h"
#include "roomcolor.h"
#include "rowdelegate.h"

#include <QSignalBlocker>

namespace {

/// Keeps a cell in its room's colour also while its row is selected.
class RoomDelegate : public RowDelegate
{
public:
    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        RowDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_Selected;
    }
};

/// Keeps the colour that a page gave a row's texts visible while the row is selected, as the
/// colour of the selection itself.
class NumberDelegate : public RowDelegate
{
public:
    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        RowDelegate::initStyleOption(option, index);
        const QVariant given = index.data(Qt::ForegroundRole);
        if (given.isValid()) {
            const QColor color = given.value<QBrush>().color();
            option->palette.setColor(QPalette::Highlight, readableGround(color, Qt::white));
            option->palette.setColor(QPalette::HighlightedText, Qt::white);
        }
    }
};

QTreeWidgetItem* createRow(const RoomGroup& group)
{
    auto* row = new QTreeWidgetItem(
        {QString::number(group.number), QString::number(group.sceneNumber), group.roomText()});
    row->setBackground(RoomGroupList::RoomColumn, roomColor(group.rooms.first(), Qt::white));
    row->setForeground(RoomGroupList::RoomColumn, QColor(Qt::white));
    return row;
}

} // namespace

RoomGroupList::RoomGroupList(const QStringList& headers, const QList<int>& widths, QWidget* parent)
    : RowList(parent)
{
    setHeaderLabels(headers);
    setRootIsDecorated(false);
    setAccessibleName(tr("Room combinations"));
    setItemDelegate(new NumberDelegate(this));
    setItemDelegateForColumn(RoomColumn, new RoomDelegate(this));
    QMap<int, int> widthOfColumn;
    for (int column = 0; column < widths.size(); ++column) {
        widthOfColumn.insert(column, widths.at(column));
    }
    new ColumnWidths(this, widthOfColumn);
    for (int column = 0; column < headers.size(); ++column) {
        headerItem()->setToolTip(column, headers.at(column)); // some are wider than their columns
    }
}

void RoomGroupList::setGroups(const QList<RoomGroup>& groups)
{
    const QSignalBlocker blocker(this);
    clear();
    QList<QTreeWidgetItem*> rows;
    rows.reserve(groups.size());
    for (const RoomGroup& group : groups) {
        rows.append(createRow(group));
    }
    addTopLevelItems(rows);
}

int RoomGroupList::currentGroup() const
{
    return indexOfTopLevelItem(currentItem());
}

void RoomGroupList::selectGroup(int index)
{
    if (QTreeWidgetItem* row = topLevelItem(index)) {
        setCurrentItem(row);
    }
}
