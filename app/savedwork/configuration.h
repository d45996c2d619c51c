#pragma once

#include "savedwork.h"

#include <QString>

#include <optional>

/// All that a file of saved work holds.
struct Configuration
{
    SavedWork work;
    QList<SceneInfo> pictures; ///< the layouts once more, with their pictures
};

/// What came of reading a file of saved work.
struct ConfigurationReading
{
    /// All that could be read; nothing when that is not even its text.
    std::optional<Configuration> configuration;
    /// The first thing that is wrong with the file, for people: the place in it, if there is one,
    /// and the reason. Empty when all of it was read.
    QString fault;
};

/// Reads a file that the wizard has written, whatever its name. The reader's limits are those of
/// unpackResumeFile() and readResumeXml(). Damage behind the text, and whatever the text
/// says that the limits or this version leave out (an unknown element or attribute, an impossible
/// value), are faults of the file that leave something to be read: whether that will do is up to
/// the caller. A record without an attribute is read; it keeps its default.
ConfigurationReading readConfiguration(const QString& path);

/// What can be read of such a file, whatever is wrong with it and without asking what that is;
/// nothing when that is not even its text.
std::optional<Configuration> readRemains(const QString& path);
