#include "faultplan.h"

namespace {

bool concerns(const Fault& fault, Exchange exchange)
{
    return !isPerConnection(fault.kind) && channelOf(fault.kind) == channelOf(exchange) &&
           fault.exchange.value_or(exchange) == exchange;
}

bool strike(Fault& fault)
{
    if (fault.skip > 0) {
        --fault.skip;
        return false;
    }
    if (fault.times > 0) {
        --fault.times;
    }
    return true;
}

} // namespace

void FaultPlan::add(const Fault& fault)
{
    m_faults.append(fault);
    dropSpent();
}

void FaultPlan::clear()
{
    m_faults.clear();
}

QList<Fault> FaultPlan::take(Exchange exchange)
{
    QList<Fault> struck;
    for (Fault& fault : m_faults) {
        if (concerns(fault, exchange) && strike(fault)) {
            struck.append(fault);
        }
    }
    dropSpent();
    return struck;
}

std::optional<Fault> FaultPlan::take(FaultKind kind)
{
    std::optional<Fault> struck;
    for (Fault& fault : m_faults) {
        if (!struck && fault.kind == kind && strike(fault)) {
            struck = fault;
        }
    }
    dropSpent();
    return struck;
}

bool FaultPlan::holds(FaultKind kind) const
{
    for (const Fault& fault : m_faults) {
        if (fault.kind == kind) {
            return true;
        }
    }
    return false;
}

void FaultPlan::dropSpent()
{
    m_faults.removeIf([](const Fault& fault) { return fault.times == 0; });
}
