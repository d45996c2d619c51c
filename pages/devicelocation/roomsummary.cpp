#include "roomsummary.h"

#include "deviceclass.h"
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

struct Count
{
    Column column;
    int count;
    bool tooMany;
};

QList<Count> judge(const DeviceCounts& counts)
{
    const bool tooManyTogether =
        counts.microphones + counts.speakers > DeviceCounts::maxMicrophonesAndSpeakers;
    return {
        {HubColumn, counts.hubs, counts.hubs > DeviceCounts::maxHubs},
        {MicrophoneColumn, counts.microphones,
         counts.microphones > DeviceCounts::maxMicrophones || tooManyTogether},
        {SpeakerColumn, counts.speakers,
         counts.speakers > DeviceCounts::maxSpeakers || tooManyTogether},
        {ControllerColumn, counts.controllers, counts.controllers > DeviceCounts::maxControllers}};
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
    : QTreeWidget(parent)
{
    setHeaderLabels(
        {tr("Room"), tr("PX-HB"), tr("Microphone"), tr("Speaker"), tr("Controller"), QString()});
    setRootIsDecorated(false);
    setColumnWidth(RoomColumn, roomWidth);
    // A selected row would hide the colours that the table is read by.
    setSelectionMode(QAbstractItemView::NoSelection);
}

bool RoomSummary::showCounts(const QList<DeviceCounts>& counts)
{
    QList<QTreeWidgetItem*> rows;
    bool withinLimits = true;
    bool anyDevice = false;
    for (int room = 1; room <= counts.size(); ++room) {
        QTreeWidgetItem* row = roomRow(room);
        for (const Count& count : judge(counts.at(room - 1))) {
            row->setText(count.column, QString::number(count.count));
            if (count.tooMany) {
                row->setForeground(count.column, QBrush(Qt::red));
                row->setData(count.column, Qt::AccessibleDescriptionRole,
                             tr("more devices than supported"));
                withinLimits = false;
            }
            anyDevice = anyDevice || count.count > 0;
        }
        rows.append(row);
    }
    clear();
    addTopLevelItems(rows);
    return withinLimits && anyDevice;
}
