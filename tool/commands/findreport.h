#pragma once

#include "networksearch.h"

#include <QJsonObject>

/// The tables for people, of at most 80 columns.
QString findTables(const SearchResult& result);

/// The same for programs.
QJsonObject findObject(const SearchResult& result);

/// What is not as it should be, a line each; empty when all is.
QStringList findFaults(const SearchResult& result);
