#pragma once

#include "nicrows.h"

/// Why no device can be asked at this address, in words that follow the option's name, such as "is
/// no IPv4 address": it has to be one that a single device can have, and not one of the computer
/// with these interfaces. Empty when it can be asked.
QString probeFault(const QString& address, const QList<NicInfo>& interfaces);
