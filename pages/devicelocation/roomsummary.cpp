#include "roomsummary.h"

#include "deviceclass.h"
#include "devicelimits.h"
#include "focusedcelldelegate.h"
#include "records.h"
#include "roomcolor.h"

namespace {

constexpr int roomWidth = 50;

enum Column
{
    RoomColumn,
    HubColumn,
    MicrophoneColumn,
    SpeakerColumn,
    ControllerColumn
};

QList<Column> columnsOf(const LimitBreach& breach)
{
    if (breach.limit == LimitBreach::Limit::Hubs) {
        return {HubColumn};
    }
    if (breach.limit == LimitBreach::Limit::Controllers) {
        return {ControllerColumn};
    }
    QList<Column> columns;
    if (concernsMicrophones(breach)) {
        columns.append(MicrophoneColumn);
    }
    if (concernsSpeakers(breach)) {
        columns.append(SpeakerColumn);
    }
    return columns;
}

void addReason(QTreeWidgetItem* row, Column column, const QString& reason)
{
    const QString before = row->toolTip(column);
    const QString reasons = before.isEmpty() ? reason : before + u'\n' + reason;
    row->setForeground(column, QBrush(Qt::red));
    row->setToolTip(column, reasons);
    row->setData(column, Qt::AccessibleDescriptionRole, reasons);
}

void setCounts(QTreeWidgetItem* row, const DeviceCounts& counts)
{
    row->setText(HubColumn, QString::number(counts.hubs));
    row->setText(MicrophoneColumn, QString::number(counts.microphones));
    row->setText(SpeakerColumn, QString::number(counts.speakers));
    row->setText(ControllerColumn, QString::number(counts.controllers));
    for (const LimitBreach& breach : breachesOfRoom(counts)) {
        for (const Column column : columnsOf(breach)) {
            addReason(row, column, breachWords(breach));
        }
    }
}

QTreeWidgetItem* roomRow(int room)
{
    auto* row = new QTreeWidgetItem({QString::number(room)});
    row->setBackground(RoomColumn, roomColor(room, Qt::white));
    row->setForeground(RoomColumn, QBrush(Qt::white));
    row->setTextAlignment(RoomColumn, Qt::AlignCenter);
    return row;
}

} // namespace

RoomSummary::RoomSummary(QWidget* parent)
    : CountTable(
          {tr("Room"), tr("PX-HB"), tr("Microphone"), tr("Speaker"), tr("Controller"), QString()},
          RoomInfo::maxRooms, {{RoomColumn, roomWidth}}, parent)
{
    setItemDelegate(new FocusedCellDelegate(this));
    // A selected row would hide the colours that the table is read by.
    setSelectionMode(QAbstractItemView::NoSelection);
}

void RoomSummary::showCounts(const QList<DeviceCounts>& counts)
{
    QList<QTreeWidgetItem*> rows;
    for (int room = 1; room <= counts.size(); ++room) {
        QTreeWidgetItem* row = roomRow(room);
        setCounts(row, counts.at(room - 1));
        rows.append(row);
    }
    clear();
    addTopLevelItems(rows);
}
