#pragma once

#include "hallsearch.h"
#include "interfacechoice.h"

#include <QDateTime>

class Terminal;

/// What came of a search for devices.
struct SearchResult
{
    QString fault = {}; ///< why it came to nothing; empty when something could be asked
    QDateTime begun = {};
    InterfaceChoice side = {};
    QList<JudgedDevice> devices = {}; ///< those that answered, in the order of their addresses
    QList<Probe> probes = {};         ///< the addresses that were asked by name, in the order given
    bool isInterrupted = false;       ///< by Ctrl+C; that is a fault too
};

/// Searches on the interface of this name, or on the only one when it is empty, and comes back when
/// everyone has had the time to answer, or at Ctrl+C; see HallSearch. A person who watches is told
/// where.
SearchResult searchNetwork(const QString& interfaceName, int waitMs, const QStringList& probes,
                           Terminal& terminal);

/// The device at this address among those that answered; null when it did not.
const JudgedDevice* answerFrom(const QString& address, const QList<JudgedDevice>& devices);

/// How an address behaved that was asked by name from this side, for people.
QString probeWords(const Probe& probe, const InterfaceChoice& side);
