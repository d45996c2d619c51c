#pragma once

#include <QList>
#include <QVariantMap>

struct DocumentData;

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
