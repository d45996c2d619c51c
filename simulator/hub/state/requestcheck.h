#pragma once

#include "hubrequest.h"

#include <QString>
#include <QStringList>

/// Compares a routed request byte for byte with what a hub prescribes: the request line with the
/// absolute target that names the hub's own `address`, order and case of the header lines, the
/// Content-Length in bytes, and the body with its spacing.
///
/// Returns one readable text per difference, without secrets; an empty list for a request that is
/// right.
QStringList requestDifferences(const HubRequest& request, const QString& address);
