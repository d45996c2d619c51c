#pragma once

#include "fault.h"

/// The faults that lie ahead of one device.
class FaultPlan
{
public:
    /// Adds a fault behind those already planned.
    void add(const Fault& fault);
    /// From now on everything goes well.
    void clear();

    /// The faults that strike this exchange, in the order in which they were planned; each counts
    /// as having struck once. Kinds that strike a connection are not among them.
    QList<Fault> take(Exchange exchange);

    /// The first planned fault of this kind, counted as having struck once; for kinds that
    /// strike a connection.
    std::optional<Fault> take(FaultKind kind);

    /// True while a fault of this kind is planned.
    bool holds(FaultKind kind) const;

private:
    void dropSpent();

    QList<Fault> m_faults;
};
