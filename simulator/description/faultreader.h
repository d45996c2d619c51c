#pragma once

#include "fault.h"

#include <QJsonObject>
#include <QString>
#include <optional>

/// The fault in a text "DEVICE,EXCHANGE,KIND[*TIMES][,VALUE]", as it is given on a command line.
/// "*" stands for every device, or for every exchange. The value is a number, a text (with \r, \n,
/// \\ and \xNN for single bytes) or offsets joined with ";", as the kind takes it.
/// Nothing, with `error` in plain words, when the text holds no fault.
std::optional<Fault> faultFromText(const QString& text, QString* error);

/// The fault in an object {"device", "at", "kind", "value", "times", "skip"} of a description
/// file; `where` names it in errors. All but "kind", and "value" where the kind takes one, may be
/// absent.
std::optional<Fault> faultFromJson(const QJsonObject& object, const QString& where, QString* error);
