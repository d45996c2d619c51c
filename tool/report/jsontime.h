#pragma once

#include <QDateTime>

class JsonFields;

/// A moment that a command has noted ("2026-11-22T10:15:00"); invalid when the key is missing. What
/// is none is a fault.
QDateTime timeFrom(JsonFields& fields, const QString& key);
