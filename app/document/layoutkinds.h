#pragma once

#include <QVariantMap>

struct DocumentData;

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
