#pragma once

#include <QStringView>

/// Whether a device of this firmware and model can be configured by the wizard.
///
/// A model of the catalogue (devicecatalogue.h) is accepted from its least firmware on. The version
/// is read as far as the least firmware goes: "2" asks for a first part of 2 or more and looks no
/// further, "1.9.3" for at least three parts. Text before the first digit is skipped ("V2.0.1").
/// Empty or unreadable texts are refused.
bool isDeviceAccepted(QStringView version, QStringView model);
