#include "hallfaults.h"

#include "devicecatalogue.h"
#include "devicetexts.h"
#include "halldocument.h"
#include "halllimits.h"
#include "hallview.h"

#include <QSet>

#include <algorithm>

namespace {

QString line(const QString& place, const QString& reason)
{
    return place + QStringLiteral(": ") + reason;
}

QString placeOf(const QString& address)
{
    return QStringLiteral("device ") + address;
}

bool hasControlCharacters(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.category() == QChar::Other_Control; });
}

QString roomsText(const RoomGroup& group)
{
    return QStringLiteral("layout %1, room %2")
        .arg(QString::number(group.sceneNumber), layoutText({group.rooms}));
}

/// Looks at one device after the other.
class DeviceJudge
{
public:
    explicit DeviceJudge(const DocumentData& hall)
    {
        for (const RoomInfo& room : hall.rooms) {
            m_rooms.insert(room.number);
        }
    }

    QStringList faultsOf(const DeviceData& device)
    {
        m_place = placeOf(device.ipAddress);
        m_faults.clear();
        require(isDeviceAddress(device.ipAddress),
                QStringLiteral("this is no address of a device"));
        require(!m_addresses.contains(device.ipAddress),
                QStringLiteral("an earlier device has this address"));
        judgeMacAddress(device);
        require(findModel(device.modelName) != nullptr,
                QStringLiteral("unknown model \"%1\"").arg(device.modelName));
        require(device.roomNumber == 0 || m_rooms.contains(device.roomNumber),
                QStringLiteral("unknown room %1").arg(device.roomNumber));
        require(!hasControlCharacters(device.label),
                QStringLiteral("its label has control characters"));
        require(!device.labelModified || isDeviceName(device.label),
                QStringLiteral("\"%1\" is no name for a device: 1 to %2 letters, digits and dashes")
                    .arg(device.label, QString::number(maxDeviceNameLength)));
        m_addresses.insert(device.ipAddress);
        return m_faults;
    }

private:
    void judgeMacAddress(const DeviceData& device)
    {
        const QString mac = device.macAddress;
        if (mac.isEmpty()) {
            m_faults.append(missingMacFault(device.ipAddress));
            return;
        }
        require(isMacAddress(mac), QStringLiteral("\"%1\" is no MAC address").arg(mac));
        require(!m_macAddresses.contains(mac.toUpper()),
                QStringLiteral("an earlier device has the MAC address %1").arg(mac));
        m_macAddresses.insert(mac.toUpper());
    }

    void require(bool holds, const QString& reason)
    {
        if (!holds) {
            m_faults.append(line(m_place, reason));
        }
    }

    QSet<int> m_rooms;
    QSet<QString> m_addresses;
    QSet<QString> m_macAddresses;
    QString m_place;
    QStringList m_faults;
};

QStringList faultsOfRooms(const QList<RoomInfo>& rooms)
{
    QSet<int> numbers;
    int highest = 0;
    for (const RoomInfo& room : rooms) {
        numbers.insert(room.number);
        highest = std::max(highest, room.number);
    }
    QStringList faults;
    for (int number = 1; number < highest; ++number) {
        if (!numbers.contains(number)) {
            faults.append(line(
                QStringLiteral("rooms"),
                QStringLiteral("there is a room %1, but no room %2").arg(highest).arg(number)));
        }
    }
    return faults;
}

/// Every drawn room has to be in one combined room of a layout, and nothing else.
QStringList faultsOfLayout(const SceneInfo& layout, const QList<RoomInfo>& rooms)
{
    const QString place = QStringLiteral("layout %1").arg(layout.number);
    QList<int> left;
    for (const RoomInfo& room : rooms) {
        left.append(room.number);
    }
    QSet<int> named;
    QStringList faults;
    for (const QList<int>& combined : combinedRoomsIn(layout.roomGroup)) {
        for (const int room : combined) {
            if (!left.removeOne(room)) {
                const QString reason = named.contains(room)
                                           ? QStringLiteral("room %1 is in it twice")
                                           : QStringLiteral("unknown room %1");
                faults.append(line(place, reason.arg(room)));
            }
            named.insert(room);
        }
    }
    for (const int room : std::as_const(left)) {
        faults.append(line(place, QStringLiteral("room %1 is not in it").arg(room)));
    }
    return faults;
}

QStringList faultsOfLayouts(const DocumentData& hall)
{
    QStringList faults;
    QHash<QString, int> numbers;
    for (const SceneInfo& layout : hall.scenes) {
        faults += faultsOfLayout(layout, hall.rooms);
        const QString text = layoutText(combinedRoomsIn(layout.roomGroup));
        if (numbers.contains(text)) {
            faults.append(
                line(QStringLiteral("layout %1").arg(layout.number),
                     QStringLiteral("%1 is layout %2 already").arg(text).arg(numbers.value(text))));
        }
        numbers.insert(text, numbers.value(text, layout.number));
    }
    if (hall.scenes.size() > HallLimits::maxLayoutCount) {
        faults.append(
            line(QStringLiteral("layouts"), QStringLiteral("there are %1; %2 are possible")
                                                .arg(hall.scenes.size())
                                                .arg(HallLimits::maxLayoutCount)));
    }
    return faults;
}

/// What is wrong with a device of a combined room; empty when nothing is.
QString faultOfMember(const MemberView& member)
{
    if (member.address.isEmpty()) {
        return QStringLiteral("a device without address");
    }
    if (member.device == nullptr) {
        return QStringLiteral("unknown device ") + member.address;
    }
    if (member.side != u"L" && member.side != u"R") {
        return QStringLiteral("side \"%1\" of %2 is neither L nor R")
            .arg(member.side, member.address);
    }
    const bool isSpeaker = deviceClass(member.device->modelName) == DeviceClass::Speaker;
    return member.side == u"R" && !isSpeaker ? member.address + QStringLiteral(" is no speaker")
                                             : QString();
}

QStringList faultsOfSets(const QList<CombinedRoomView>& views)
{
    QStringList faults;
    for (const CombinedRoomView& view : views) {
        const QString place = roomsText(view.group);
        for (const MemberView& member : view.members) {
            const QString fault = faultOfMember(member);
            if (!fault.isEmpty()) {
                faults.append(line(place, fault));
            }
        }
        const qsizetype length = view.presetName.value_or(QString()).size();
        if (length > HallLimits::maxPresetNameLength) {
            faults.append(
                line(place, QStringLiteral("a preset name of %1 characters; %2 are possible")
                                .arg(length)
                                .arg(HallLimits::maxPresetNameLength)));
        }
    }
    return faults;
}

/// The records that belong to no combined room. Only those that were told one by one can, so it is
/// there that they are named; one line for each combined room that is not there.
template <typename Record>
QStringList faultsOfStrays(const QString& place, const QList<Record>& records,
                           const QList<CombinedRoomView>& views)
{
    QSet<std::pair<int, int>> known;
    for (const CombinedRoomView& view : views) {
        known.insert({view.group.sceneNumber, view.group.number});
    }
    QStringList faults;
    for (const Record& record : records) {
        const std::pair<int, int> wanted(record.sceneNumber, record.deviceSetNumber);
        if (!known.contains(wanted)) {
            faults.append(line(place, QStringLiteral("layout %1 has no combined room %2")
                                          .arg(wanted.first)
                                          .arg(wanted.second)));
        }
        known.insert(wanted);
    }
    return faults;
}

} // namespace

QStringList brokenLimits(HallDocument& hall)
{
    QStringList broken;
    const auto add = [&broken](const QString& place, const QList<LimitBreach>& breaches) {
        for (const LimitBreach& breach : breaches) {
            broken.append(line(place, breachWords(breach)));
        }
    };
    for (const RoomView& view : roomViews(hall)) {
        add(QStringLiteral("room %1").arg(view.number), view.tally.breaches);
    }
    for (const CombinedRoomView& view : combinedRoomViews(hall)) {
        add(roomsText(view.group), view.tally.breaches);
    }
    return broken;
}

QStringList hallFaults(HallDocument& hall)
{
    QStringList faults = faultsOfRooms(hall.data().rooms);
    DeviceJudge judge(hall.data());
    for (const DeviceData& device : hall.data().devices.all()) {
        faults += judge.faultsOf(device);
    }
    const QList<CombinedRoomView> views = combinedRoomViews(hall);
    return faults + faultsOfLayouts(hall.data()) + faultsOfSets(views) +
           faultsOfStrays(QStringLiteral("exact.sets"), hall.data().deviceSets.all(), views) +
           faultsOfStrays(QStringLiteral("exact.presets"), hall.data().presets, views) +
           brokenLimits(hall);
}

QString missingMacFault(const QString& address)
{
    return line(placeOf(address), QStringLiteral("its MAC address is missing"));
}
