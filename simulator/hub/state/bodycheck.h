#pragma once

#include "exchange.h"

#include <QByteArray>
#include <QString>
#include <optional>

/// In what the body of a request differs from what a hub prescribes for it, spacing included;
/// nothing when it is right. Bodies that carry secrets are not quoted.
std::optional<QString> bodyDifference(Exchange exchange, const QByteArray& body);
