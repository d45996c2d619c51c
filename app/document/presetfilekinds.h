#pragma once

#include <QVariantMap>

struct DocumentData;

/// The generated preset files. Layout and hub address select the first two, a device's address
/// the third; a query that fails adds nothing.
namespace PresetFileKinds {

bool hubFile(const DocumentData& doc, QVariantMap& data);
bool peripherals(const DocumentData& doc, QVariantMap& data);
bool peripheralFile(const DocumentData& doc, QVariantMap& data);

} // namespace PresetFileKinds
