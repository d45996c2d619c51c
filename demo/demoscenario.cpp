#include "demoscenario.h"

namespace {

constexpr int rooms = 4;
constexpr int roomSide = 4; // each room is a quarter of the 8 x 8 grid
constexpr int maxMicrophonesAndSpeakers = 16;

// The names include what is hard to carry: quotes, a backslash, a percent sign, nothing at all.
QStringList presetNames()
{
    return {QStringLiteral("Café \"A\\B\""), QString(),
            QStringLiteral("Room 3, 50%2"),  QStringLiteral("Room 4"),
            QStringLiteral("Stage+Foyer"),   QStringLiteral("Salon"),
            QStringLiteral("Bar"),           QStringLiteral("Stage"),
            QStringLiteral("Foyer"),         QStringLiteral("Salon & Bar"),
            QStringLiteral("West <1,2>"),    QStringLiteral("East 'n' 3,4"),
            QStringLiteral("Großer Saal")};
}

QList<DemoLayout> makeLayouts()
{
    return {{QStringLiteral("1/2/3/4"), {}, {}},
            {QStringLiteral("1+2/3/4"), {{1, 2}}, {}},
            {QStringLiteral("1/2/3+4"), {{1, 2}, {3, 4}}, {}},
            {QStringLiteral("1+2/3+4"), {{1, 2}}, {}},
            {QStringLiteral("1+2+3+4"), {}, {{1, 4}}}};
}

QList<DemoGroup> makeGroups(const QList<DemoLayout>& layouts)
{
    const QStringList names = presetNames();
    QList<DemoGroup> groups;
    for (int layout = 1; layout <= layouts.size(); ++layout) {
        for (const QString& text : layouts.at(layout - 1).roomGroup.split(QLatin1Char('/'))) {
            DemoGroup group{int(groups.size()) + 1, layout, {}, names.value(groups.size())};
            for (const QString& room : text.split(QLatin1Char('+'))) {
                group.rooms.append(room.toInt());
            }
            groups.append(group);
        }
    }
    return groups;
}

bool isController(const DemoDevice& device)
{
    return device.modelName == QLatin1String("PNB-QE7");
}

} // namespace

bool DemoDevice::isHub() const
{
    return modelName.startsWith(QLatin1String("PX-HB"));
}

bool DemoDevice::isSpeaker() const
{
    return modelName == QLatin1String("LQA4-08S") || modelName == QLatin1String("DSK4M");
}

DemoScenario::DemoScenario(QList<DemoDevice> devices)
    : m_devices(std::move(devices))
    , m_layouts(makeLayouts())
    , m_groups(makeGroups(m_layouts))
{
    int hubs = 0;
    int peripherals = 0;
    for (DemoDevice& device : m_devices) {
        device.room = device.isHub() ? ++hubs : peripherals++ % rooms + 1;
    }
    m_renames.insert(m_devices.at(1).address, QStringLiteral("Foyer-Hub"));
    m_renames.insert(m_devices.last().address, QStringLiteral("Stage-Left-2"));
}

QList<QPoint> DemoScenario::cellsOfRoom(int room) const
{
    const int left = (room - 1) % 2 * roomSide;
    const int top = (room - 1) / 2 * roomSide;
    QList<QPoint> cells;
    for (int row = 0; row < roomSide; ++row) {
        for (int step = 0; step < roomSide; ++step) {
            // To and fro, so that the stroke never leaves the room.
            const int column = row % 2 == 0 ? step : roomSide - 1 - step;
            cells.append({left + column, top + row});
        }
    }
    return cells;
}

QString DemoScenario::labelOf(const DemoDevice& device) const
{
    return m_renames.value(device.address, device.label);
}

QList<DemoDevice> DemoScenario::devicesOf(const DemoGroup& group) const
{
    QList<DemoDevice> found;
    for (const int room : group.rooms) {
        for (const DemoDevice& device : m_devices) {
            if (device.room == room) {
                found.append(device);
            }
        }
    }
    return found;
}

bool DemoScenario::isRemoved(const DemoGroup& group, const DemoDevice& device) const
{
    int hubs = 0;
    int microphonesAndSpeakers = 0;
    for (const DemoDevice& member : devicesOf(group)) {
        bool tooMany = false;
        if (member.isHub()) {
            tooMany = ++hubs > 1;
        } else if (!isController(member)) {
            tooMany = ++microphonesAndSpeakers > maxMicrophonesAndSpeakers;
        }
        if (member.address == device.address) {
            return tooMany;
        }
    }
    return false;
}

QString DemoScenario::positionOf(const DemoDevice& device) const
{
    const bool right = device.isSpeaker() && device.room % 2 == 0;
    return right ? QStringLiteral("R") : QStringLiteral("L");
}

const DemoGroup& DemoScenario::groupOf(int layout, int room) const
{
    for (const DemoGroup& group : m_groups) {
        if (group.layout == layout && group.rooms.contains(room)) {
            return group;
        }
    }
    Q_UNREACHABLE();
}

QList<DemoDevice> DemoScenario::peripheralsOf(const DemoDevice& hub, int layout) const
{
    const DemoGroup& group = groupOf(layout, hub.room);
    QList<DemoDevice> found;
    if (isRemoved(group, hub)) {
        return found;
    }
    for (const DemoDevice& device : devicesOf(group)) {
        if (!device.isHub() && !isRemoved(group, device)) {
            found.append(device);
        }
    }
    return found;
}
