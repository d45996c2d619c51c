#pragma once

#include "networksearch.h"

#include <QJsonObject>

/// The tables for people, of at most 80 columns.
QString findTables(const SearchResult& result);

/// The same for programs.
QJsonObject findObject(const SearchResult& result);

/// That nobody answered; empty when somebody did.
QString silenceFault(const SearchResult& result);

/// What is not as it should be with single addresses, a line each; empty when all is. The tables
/// show it too.
QStringList findFaults(const SearchResult& result);
