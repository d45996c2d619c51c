#pragma once

#include "devicejudgement.h"
#include "documentdata.h"

#include <QStringList>

/// The addresses of the devices of a hall that lack a MAC address and can be asked for it.
QStringList addressesWithoutMac(const DocumentData& hall);

/// Gives them the MAC address that the device at their address tells. All devices of the hall that
/// have answered are held against what they tell: a line for each that is another one, or that the
/// wizard does not take, and such a one is given nothing.
QStringList takeMacs(DocumentData& hall, const QList<JudgedDevice>& answers);
