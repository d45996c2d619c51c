#include "enteredwork.h"

#include "datakey.h"
#include "datakind.h"
#include "devicequeries.h"
#include "idocaccessor.h"
#include "layoutqueries.h"
#include "roomqueries.h"

namespace {

QVariantMap deviceAtIndex(IDocAccessor& doc, int index)
{
    QVariantMap device{{DataKey::index(), index}};
    doc.getData(DataKind::Device, device);
    // Whether the label was changed shows in the file that takes it to the device, and only there.
    doc.getData(DataKind::DevicePresetFile, device);
    return device;
}

QVariantMap roomOfNumber(IDocAccessor& doc, int number)
{
    QVariantMap room{{DataKey::roomNumber(), number}};
    doc.getData(DataKind::RoomInfo, room);
    return room;
}

QVariantMap layoutOfNumber(IDocAccessor& doc, int number)
{
    QVariantMap layout{{DataKey::sceneNumber(), number}};
    doc.getData(DataKind::Scene, layout);
    layout.remove(DataKey::roomThumbnail());
    return layout;
}

} // namespace

EnteredWork enteredWork(IDocAccessor& doc)
{
    EnteredWork work;
    const int devices = deviceCount(doc);
    for (int index = 0; index < devices; ++index) {
        work.append(deviceAtIndex(doc, index));
    }
    const int rooms = roomCount(doc);
    for (int number = 1; number <= rooms; ++number) {
        work.append(roomOfNumber(doc, number));
    }
    const int layouts = layoutCount(doc);
    for (int number = 1; number <= layouts; ++number) {
        work.append(layoutOfNumber(doc, number));
    }
    doc.getDataList(DataKind::DeviceSet, {}, work);
    doc.getDataList(DataKind::Preset, {}, work);
    return work;
}
