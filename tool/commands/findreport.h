#pragma once

#include "hallsearch.h"
#include "interfacechoice.h"

#include <QDateTime>
#include <QJsonObject>

/// What a search found, and where it searched.
struct FindResult
{
    QDateTime begun;
    InterfaceChoice side;
    QList<JudgedDevice> devices;
    QList<Probe> probes;
};

/// The tables for people, of at most 80 columns.
QString findTables(const FindResult& result);

/// The same for programs.
QJsonObject findObject(const FindResult& result);

/// What is not as it should be, a line each; empty when all is.
QStringList findFaults(const FindResult& result);
