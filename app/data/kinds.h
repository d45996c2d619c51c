#pragma once

#include <QList>
#include <QVariantMap>

struct DocumentData;

// What IDocAccessor's operations do to the document, kind by kind: the functions that
// kindoperations.cpp puts into its table. They follow the rules told at KindOperations.

/// The three single values: network interface, page and window size.
namespace SessionKinds {

bool setNicIndex(DocumentData& doc, const QVariantMap& data);
/// Puts whether it was handed over by the program's arguments only for who asks for it by the key.
bool getNicIndex(const DocumentData& doc, QVariantMap& data);
bool setPageIndex(DocumentData& doc, const QVariantMap& data);
bool getPageIndex(const DocumentData& doc, QVariantMap& data);
bool setWindowSize(DocumentData& doc, const QVariantMap& data);
bool getWindowSize(const DocumentData& doc, QVariantMap& data);

} // namespace SessionKinds

/// The device records and their number.
namespace DeviceKinds {

bool count(const DocumentData& doc, QVariantMap& data);

/// Changes room and label of the device with the given address. A label that differs from the
/// stored one counts as changed by the user.
bool set(DocumentData& doc, const QVariantMap& data);

/// Selects by position or, without one, by address. Search type and password are never told.
bool get(const DocumentData& doc, QVariantMap& data);

/// Refuses devices whose model or firmware the wizard cannot configure.
bool add(DocumentData& doc, const QVariantMap& data);

/// The devices of one room; false when it holds none.
bool list(const DocumentData& doc, const QVariantMap& selector, QList<QVariantMap>& list);

} // namespace DeviceKinds

/// The drawn rooms.
namespace RoomKinds {

/// Removes all rooms and, with them, all layouts made of them.
void clear(DocumentData& doc);

/// Puts the highest room number, 0 without rooms.
bool count(const DocumentData& doc, QVariantMap& data);

/// Replaces the cells of a room or adds the room.
bool set(DocumentData& doc, const QVariantMap& data);

bool get(const DocumentData& doc, QVariantMap& data);

} // namespace RoomKinds

/// The room layouts ("scenes" in the keys).
namespace LayoutKinds {

/// Replaces room group text and picture of an existing layout.
bool set(DocumentData& doc, const QVariantMap& data);
bool get(const DocumentData& doc, QVariantMap& data);
void clear(DocumentData& doc);

/// Refuses a number that is taken.
bool add(DocumentData& doc, const QVariantMap& data);
bool count(const DocumentData& doc, QVariantMap& data);

} // namespace LayoutKinds

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

/// The presets' names.
namespace PresetKinds {

/// Selected by set number and layout or, without a set number, by layout and the address of a
/// device of the set; then the set's number is put as well.
bool get(const DocumentData& doc, QVariantMap& data);
void clear(DocumentData& doc);

/// Refuses a second preset of the same set and layout.
bool add(DocumentData& doc, const QVariantMap& data);

/// Every preset; false when there is none.
bool list(const DocumentData& doc, const QVariantMap& selector, QList<QVariantMap>& list);

} // namespace PresetKinds

/// The generated preset files. Layout and hub address select the first two, a device's address
/// the third; a query that fails adds nothing.
namespace PresetFileKinds {

bool hubFile(const DocumentData& doc, QVariantMap& data);
bool peripherals(const DocumentData& doc, QVariantMap& data);
bool peripheralFile(const DocumentData& doc, QVariantMap& data);

} // namespace PresetFileKinds
