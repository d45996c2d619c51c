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

/// A configuration, or why there is none.
struct ConfigurationReading
{
    std::optional<Configuration> configuration;
    QString error; ///< a sentence for people; empty when there is one
};

/// Reads a file that the wizard has written, whatever its name. The reader's limits are those of
/// unpackResumeFile() and readResumeXml(); a foreign element ends the reading and is no error here.
ConfigurationReading readConfiguration(const QString& path);
