#pragma once

#include <QList>
#include <QVariantMap>

struct DocumentData;

/// The device set records: a device's membership in a combined room of a layout. Set number,
/// layout and address select one.
namespace DeviceSetKinds {

/// Changes of the removed mark and the speaker position what is given.
bool set(DocumentData& doc, const QVariantMap& data);
bool get(const DocumentData& doc, QVariantMap& data);
void clear(DocumentData& doc);

/// Refuses a device that is in that set already. Starts as not removed and "L" unless given.
bool add(DocumentData& doc, const QVariantMap& data);

/// Narrowed by set number and layout where given. False only while there is no record at all.
bool list(const DocumentData& doc, const QVariantMap& selector, QList<QVariantMap>& list);

} // namespace DeviceSetKinds
