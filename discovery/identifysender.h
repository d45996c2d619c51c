#pragma once

#include "scpcommandsender.h"

/// Makes a device show itself, by its lamp or a sound. The connection stays open, so that the next
/// request reaches the device at once.
class IdentifySender : public SCPCommandSender
{
    Q_OBJECT

public:
    IdentifySender(const QHostAddress& hostAddress, QObject* parent);

    /// Asks the device to identify itself with the given number. Sends at once when connected;
    /// otherwise connects and sends then, once, with the number of the latest call.
    void identify(int number);

protected Q_SLOTS:
    void tcpConnected() override;

private:
    static constexpr int defaultNumber = 5;

    int m_number = defaultNumber;
};
