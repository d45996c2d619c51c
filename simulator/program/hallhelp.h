#pragma once

#include <QString>

/// How a fault is written on the command line, with everything that can stand in it.
QString faultHelp();

/// How the hall's program ends, for scripts.
QString exitCodeHelp();
