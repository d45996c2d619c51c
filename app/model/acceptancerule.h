#pragma once

#include <QStringView>

/// Whether a device of this firmware and model can be configured by the wizard.
///
/// Known models with firmware 2.0 or later are accepted; wireless access points ("PX-NDE...")
/// with 1.9.3 or later, given with at least three version parts. Text before the first digit of
/// the version is skipped ("V2.0.1"). Empty or unreadable texts are refused.
bool isDeviceAccepted(QStringView version, QStringView model);
