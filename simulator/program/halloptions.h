#pragma once

#include "halldescription.h"

#include <QString>
#include <QStringList>
#include <optional>

/// What the hall's program was told on its command line.
struct HallOptions
{
    HallDescription hall = {};
    /// Where to write what the devices hold; empty: nowhere.
    QString storeFolder = {};
};

/// The options, or the text to show instead of starting: `help` when it or the version was asked
/// for, otherwise `error`.
struct HallOptionsReading
{
    std::optional<HallOptions> options = {};
    QString help = {};
    QString error = {};
};

/// Reads a command line, the program's name first.
HallOptionsReading readHallOptions(const QStringList& arguments);
