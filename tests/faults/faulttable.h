#pragma once

#include "exchange.h"
#include "fault.h"

#include <QList>
#include <QString>

/// What is left of a hub's reply under a fault.
enum class Hearing
{
    Good,    ///< odd to look at, but all of it arrives
    Refusal, ///< another status than "200"
    Useless, ///< a "200" whose body says nothing
    Lost     ///< never whole: the wizard's patience ends
};

/// A way in which any reply of a hub can go wrong. A new row of this kind is tested against every
/// request of an installation.
struct ReplyFault
{
    const char* name = "";
    QList<Fault> faults = {};
    Hearing hearing = Hearing::Good;
};

/// All of them.
const QList<ReplyFault>& replyFaults();

/// What the user and the hub are left with.
struct FaultOutcome
{
    QString status;   ///< of the hub on the page
    int finished = 1; ///< how often the run reports an end
    int prompts = 1;  ///< how often a password is asked for, see maxAnswers
    QString held;     ///< as heldBy() tells it
};

/// The user gives up when the same hub asks for a password once more than this.
constexpr int maxAnswers = 2;

/// What is to come of a fault that strikes every reply to this request: one rule for all.
FaultOutcome expectedOutcome(Exchange exchange, const ReplyFault& fault);
