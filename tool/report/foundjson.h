#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

/// What one device told of itself when it was searched for.
struct FoundDevice
{
    QString address;
    QString macAddress;   ///< empty when it never told its identity, as the rest may be
    QString firmware;     ///< as it told it
    QString serialNumber; ///< likewise
    QString refusal;      ///< why the wizard does not take it; empty when it does
};

/// What a search has found.
struct FoundReading
{
    QDate date; ///< of the search; invalid when the text does not tell
    QList<FoundDevice> devices;
    QString fault; ///< place and reason; empty when the text was read
};

/// Reads what `find --json` wrote. Keys that it does not need may be anything: later versions may
/// write more of them.
FoundReading readFoundJson(const QByteArray& text);
