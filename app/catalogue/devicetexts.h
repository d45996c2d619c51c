#pragma once

#include <QStringView>

/// What addresses and names of devices look like, for whoever takes them from people or files.

/// Whether a text is an IPv4 address as it is usually written: four numbers, no leading zeros.
bool isIpv4Address(QStringView text);

/// Whether it is one that a single device can have: not of "this network", of a group of devices,
/// or of all of them.
bool isDeviceAddress(QStringView text);

/// Whether a text is the MAC address of one device, in groups joined by colons, in either case.
bool isMacAddress(QStringView text);

/// The longest name that a device takes.
inline constexpr int maxDeviceNameLength = 64;

/// What a device's name is made of, as a regular expression for one or more of its characters.
QString deviceNamePattern();

/// Whether a device can be given this name.
bool isDeviceName(QStringView text);
