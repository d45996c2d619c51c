#pragma once

#include <QList>
#include <QVariantMap>

struct DocumentData;

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
