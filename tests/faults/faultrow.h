#pragma once

#include "exchange.h"
#include "faultface.h"

#include <QList>
#include <QString>

/// One row for each of these requests with each fault that a reply can have.
void addFaultRows(const QList<Exchange>& exchanges);

/// Carries out the current row through one face: four hubs from the address `base` on are
/// installed, the first of them faulty at one request. Checks what becomes of it, that the others
/// are done, and that it is done too when the fault is gone and the user tries again.
void carryOutFaultRow(const QString& base, const FaultFaceMaker& makeFace);
