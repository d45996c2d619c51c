#pragma once

#include "delivery.h"
#include "fault.h"
#include "hubreply.h"

#include <optional>

/// What a hub does in answer to one request, faults included.
struct ReplyPlan
{
    Delivery delivery = {};
    /// Set when the hub reboots instead of answering: how long it is deaf, in ms.
    std::optional<int> rebootMs = {};
};

/// True when one of the faults keeps the request from being carried out.
bool preventsAction(const QList<Fault>& faults);

/// Turns the reply into what goes onto the wire under these faults.
ReplyPlan planReply(HubReply reply, const QList<Fault>& faults);
