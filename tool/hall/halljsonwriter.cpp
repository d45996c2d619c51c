#include "halljson.h"

#include "halljsonkeys.h"
#include "hallparts.h"
#include "hallview.h"
#include "resumecells.h"
#include "resumefile.h"
#include "roomtext.h"

#include <QBuffer>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

namespace Key = HallJsonKey;

constexpr int exactParts = 4; // rooms, layouts, sets, presets

QJsonObject written(const DeviceData& device)
{
    return {{Key::label(), device.label},     {Key::address(), device.ipAddress},
            {Key::mac(), device.macAddress},  {Key::model(), device.modelName},
            {Key::room(), device.roomNumber}, {Key::renamed(), device.labelModified}};
}

QJsonObject written(const RoomInfo& room)
{
    return {{Key::number(), room.number}, {Key::cells(), writeCells(room.positionList)}};
}

QJsonObject written(const SceneInfo& layout)
{
    QByteArray picture;
    QBuffer buffer(&picture);
    if (!layout.thumbnail.isNull()) {
        layout.thumbnail.save(&buffer, "png");
    }
    return {{Key::number(), layout.number},
            {Key::rooms(), layout.roomGroup},
            {Key::picture(), QString::fromLatin1(picture.toBase64())}};
}

QJsonObject written(const DeviceSetInfo& record)
{
    return {{Key::set(), record.deviceSetNumber},
            {Key::layout(), record.sceneNumber},
            {Key::address(), record.ipAddress},
            {Key::removed(), record.remove},
            {Key::side(), record.speakerPosition}};
}

QJsonObject written(const PresetInfo& preset)
{
    return {{Key::set(), preset.deviceSetNumber},
            {Key::layout(), preset.sceneNumber},
            {Key::name(), preset.presetName}};
}

template <typename Record>
QJsonArray written(const QList<Record>& records)
{
    QJsonArray list;
    for (const Record& record : records) {
        list.append(written(record));
    }
    return list;
}

QJsonObject written(const CombinedRoomView& view)
{
    QJsonArray removed;
    QJsonArray right;
    for (const MemberView& member : view.members) {
        if (member.isRemoved) {
            removed.append(member.address);
        }
        if (member.side == u"R") {
            right.append(member.address);
        }
    }
    return {{Key::rooms(), layoutText({view.group.rooms})},
            {Key::presetName(), view.presetName.value_or(QString())},
            {Key::removed(), removed},
            {Key::right(), right}};
}

QJsonArray writtenLayouts(HallDocument& hall)
{
    QHash<int, QJsonArray> combined;
    for (const CombinedRoomView& view : combinedRoomViews(hall)) {
        combined[view.group.sceneNumber].append(written(view));
    }
    QJsonArray layouts;
    for (const SceneInfo& layout : hall.data().scenes) {
        layouts.append(QJsonObject{{Key::number(), layout.number},
                                   {Key::rooms(), layout.roomGroup},
                                   {Key::combined(), combined.value(layout.number)}});
    }
    return layouts;
}

QJsonArray writtenNotChosen(const DocumentData& hall)
{
    QJsonArray notChosen;
    if (hall.deviceSets.isEmpty()) {
        notChosen.append(Key::sets());
    }
    if (hall.presets.isEmpty()) {
        notChosen.append(Key::presets());
    }
    return notChosen;
}

/// All but the layouts and what could not be read out of them.
QJsonObject writtenBasis(const DocumentData& hall)
{
    QJsonObject object{{Key::version(), hallJsonVersion},
                       {Key::step(), hall.pageIndex + 1},
                       {Key::rooms(), QJsonArray::fromStringList(RoomText::write(hall.rooms))},
                       {Key::devices(), written(hall.devices.all())}};
    if (hall.windowSize.isValid()) {
        object.insert(Key::window(), QJsonObject{{Key::width(), hall.windowSize.width()},
                                                 {Key::height(), hall.windowSize.height()}});
    }
    return object;
}

HallJsonReading readBack(const QJsonObject& object)
{
    return readHallJson(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

bool isSame(const QList<SceneInfo>& some, const QList<SceneInfo>& others)
{
    return packResumeFile({QString(), some}) == packResumeFile({QString(), others});
}

/// What a reader of `object` would have otherwise than it is.
QJsonObject differences(const QJsonObject& object, const DocumentData& hall)
{
    const HallJsonReading reading = readBack(object);
    const DocumentData followed = reading.hall != nullptr ? reading.hall->data() : DocumentData();
    QJsonObject exact;
    if (written(followed.rooms) != written(hall.rooms)) {
        exact.insert(Key::rooms(), written(hall.rooms));
    }
    if (!isSame(followed.scenes, hall.scenes)) {
        exact.insert(Key::layouts(), written(hall.scenes));
    }
    if (written(followed.deviceSets.all()) != written(hall.deviceSets.all())) {
        exact.insert(Key::sets(), written(hall.deviceSets.all()));
    }
    if (written(followed.presets) != written(hall.presets)) {
        exact.insert(Key::presets(), written(hall.presets));
    }
    return exact;
}

} // namespace

QJsonObject writeHallJson(const DocumentData& hall)
{
    HallDocument document(hall);
    QJsonObject object = writtenBasis(hall);
    object.insert(Key::layouts(), writtenLayouts(document));
    const QJsonArray notChosen = writtenNotChosen(hall);
    if (!hall.scenes.isEmpty() && !notChosen.isEmpty()) {
        object.insert(Key::notChosen(), notChosen);
    }
    if (readBack(object).hall == nullptr) {
        // The layouts are such that they can only be told record by record.
        object.insert(Key::layouts(), QJsonArray());
    }
    // What follows from a part follows from its exact form, so it is looked at once more.
    QJsonObject exact;
    for (int round = 0; round < exactParts; ++round) {
        const QJsonObject more = differences(object, hall);
        if (more.isEmpty()) {
            break;
        }
        for (auto part = more.begin(); part != more.end(); ++part) {
            exact.insert(part.key(), part.value());
        }
        object.insert(Key::exact(), exact);
    }
    return object;
}
