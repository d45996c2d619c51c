#pragma once

#include "devicedetector.h"

#include <QList>

/// What becomes of a device that has answered a search.
enum class Verdict
{
    Taken,          ///< the wizard lists it
    FirmwareTooOld, ///< a known model with another firmware than the wizard needs
    UnknownModel,   ///< the wizard does not configure such devices
    SecondPort,     ///< the hub is listed under the address of its other port
    SameMac,        ///< another address has its serial number and its MAC: neither is listed
    DirectOnly,     ///< would be listed, but the wizard's search does not reach it
    NoIdentity      ///< answered the query, but never told its identity
};

/// What a search saw of one device.
struct SeenDevice
{
    DetectedDevice record = {};
    bool isIdentified = false; ///< told its identity
    bool isAnnounced = false;  ///< the search announced it, as it does to the wizard
    bool isReached = true;     ///< answered the broadcast, not only a query of its own
};

/// A device and what becomes of it.
struct JudgedDevice
{
    DetectedDevice record = {};
    Verdict verdict = Verdict::NoIdentity;
    QString neededFirmware = {}; ///< for FirmwareTooOld
    QString otherAddress = {};   ///< for SecondPort the hub's, for SameMac the twin's
};

/// The devices with what becomes of them, in the order of their addresses. A model and its firmware
/// are judged by the rule by which the wizard takes devices.
QList<JudgedDevice> judged(const QList<SeenDevice>& devices);

/// Whether model and firmware are such as the wizard takes, whoever has to be asked for it.
bool isFit(const JudgedDevice& device);

/// The verdict as one word for programs, such as "firmware-too-old".
QString verdictName(Verdict verdict);

/// The verdict for people, with its reason.
QString verdictWords(const JudgedDevice& device);
