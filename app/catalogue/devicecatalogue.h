#pragma once

#include <QStringView>

#include <span>

/// What a device is, by its model.
enum class DeviceClass
{
    Hub,
    Microphone,
    Speaker,
    Controller,
    Other
};

/// How the model that a device reports is held against the text of a line in the catalogue.
enum class ModelTest
{
    Equals,
    BeginsWith, ///< variants of a model are meant with it
    Never
};

/// One line of the catalogue: what the wizard knows of a model.
struct DeviceModel
{
    QStringView text;                  ///< as devices report it, or the beginning of that
    ModelTest test = ModelTest::Never; ///< which devices the line speaks of
    DeviceClass deviceClass = DeviceClass::Other; ///< what they count as
    /// The oldest firmware that is accepted. A version has to have as many parts as are given here;
    /// those behind are not looked at.
    QStringView minFirmware;
    int nameMode = 0; ///< goes with a name into the preset file of such a device
    /// Which of them get no preset file of their own through the hub that they are placed with.
    ModelTest withoutFile = ModelTest::Never;
};

/// Everything the wizard knows of device models, in the order of looking up.
std::span<const DeviceModel> deviceCatalogue();

/// The first line of the catalogue that speaks of this model; null for a model that is not known.
const DeviceModel* findModel(QStringView model);

/// Whether a device gets a preset file of its own through the hub that it is placed with: all but
/// those that the catalogue excepts.
bool hasOwnFile(QStringView model);

/// The mode that goes with a name into a device's preset file; 0 for a model that is not known.
int nameMode(QStringView model);
