#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

class IDocAccessor;

/// Typed queries over the presets and the files that they are installed as.

/// A peripheral's preset file and the address that it is stored under.
struct PeripheralFile
{
    QByteArray content;
    QString macAddress; ///< as recorded, with colons
};

/// The stored name of a combined room's preset; nothing when none is stored.
std::optional<QString> presetName(IDocAccessor& doc, int deviceSet, int scene);

/// The name of the preset of the combined room that a hub belongs to in a layout.
std::optional<QString> presetNameOfHub(IDocAccessor& doc, const QString& hubAddress, int scene);

/// Appends a preset; false when that combined room of that layout has one.
bool addPreset(IDocAccessor& doc, int deviceSet, int scene, const QString& name);

/// Removes all presets.
void clearPresets(IDocAccessor& doc);

/// The preset file of a hub for one layout; nothing when the hub is in no set there.
std::optional<QByteArray> hubPresetFile(IDocAccessor& doc, const QString& hubAddress, int scene);

/// The addresses of the peripherals placed with a hub in one layout; nothing when the hub is in
/// no set there.
std::optional<QStringList> peripheralsOfHub(IDocAccessor& doc, const QString& hubAddress,
                                            int scene);

/// The preset file of a peripheral; nothing for an unknown address.
std::optional<PeripheralFile> peripheralPresetFile(IDocAccessor& doc, const QString& ipAddress);
