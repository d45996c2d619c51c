#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// True when the bytes are well-formed XML of the shape that a hub takes as a preset file: the
/// root "provisioning" with "config" in it.
bool isPresetFile(const QByteArray& xml);

/// In what a preset file differs from the prescribed form: no declaration, one space of indent per
/// level, a hub's 24 peripheral addresses and positions in their order, the system name and its
/// mode last; nothing when it is right.
std::optional<QString> presetFileDifference(const QByteArray& xml, bool isHubFile);
