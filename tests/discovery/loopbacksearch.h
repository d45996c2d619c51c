#pragma once

#include "devicedetector.h"
#include "deviceinforeceiver.h"
#include "simpledevice.h"

#include <QSignalSpy>
#include <QString>
#include <QStringList>

/// Where a detector on the loopback interface listens.
const QString wizard = QStringLiteral("127.0.0.1");

/// The system's index of the loopback interface; 0 when there is none.
int loopbackIndex();

/// The address of a test's device, by its number.
QString address(int device);

/// A detector on the loopback interface that has sent its query, and what it has reported since.
struct Search
{
    Search();

    /// The addresses reported, in order.
    QStringList reported() const;

    /// The number of devices that have been asked for their identity.
    qsizetype queries() const;

    bool isIdentified(const QString& ipText) const;

    DeviceDetector detector;
    QSignalSpy spy;
};

/// Sends the device's reply to the wizard.
void answer(SimpleDevice& device);

/// Waits for a device that answers after all that was sent before: what came of the others is
/// decided then. The device is the one numbered 250.
void waitForControlDevice(Search& search);
