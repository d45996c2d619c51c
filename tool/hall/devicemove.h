#pragma once

#include "documentdata.h"

/// Lets the device at `address` answer at `newAddress`: it keeps its room, its sets and its side in
/// each of them. What sets said of the new address before, when no device had it, is given up.
void moveDevice(DocumentData& hall, const QString& address, const QString& newAddress);
