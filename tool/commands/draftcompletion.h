#pragma once

#include "documentdata.h"
#include "networksearch.h"

#include <QStringList>

/// What a search says of a hall that was written at a desk.
struct DraftCompletion
{
    QStringList faults = {}; ///< of devices that are others, are not taken, or lack something still
    QStringList notes = {};  ///< of devices that lack nothing and did not answer
    QStringList named = {};  ///< the addresses that the faults are about
};

/// The addresses of the devices of a hall that can be asked.
QStringList addressesToAsk(const DocumentData& hall);

/// Gives devices that lack it the MAC address that the device at their address tells, and those
/// without a name of their own its label. All of them are held against what was found: a line for
/// each that is another one, that the wizard does not take, or that did not answer. A device with a
/// fault is given nothing.
DraftCompletion completeDraft(DocumentData& hall, const SearchResult& search);
