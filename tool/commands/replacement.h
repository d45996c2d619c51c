#pragma once

#include "devicejudgement.h"
#include "records.h"

#include <QStringList>

/// What its user says of a device that is to take another's place.
struct ReplacementWish
{
    QString address = {};
    QString mac = {};   ///< in upper case; empty: as the network tells
    QString label = {}; ///< empty: see replacementFor()
};

/// The new device in the place of the old one.
struct Replacement
{
    QString fault = {}; ///< why it cannot take that place; empty when it can
    DeviceData device = {};
    QString note = {}; ///< what else has to be known of it; empty when nothing has
};

/// Makes a device of what was said of it and of what it told itself, null when it did not answer:
/// then its MAC address has to be given, and its model is taken to be the old one's.
///
/// Its label is the one that is wished for, else one that the user gave to the old device, and in
/// both cases the installation gives it that name. Otherwise it is what the new device is called
/// already, and when that is not known, what the old one was called, or its
/// address if that had no other name.
Replacement replacementFor(const DeviceData& old, const ReplacementWish& wish,
                           const JudgedDevice* told);
