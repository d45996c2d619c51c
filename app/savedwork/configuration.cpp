#include "configuration.h"

#include "resumefile.h"
#include "resumexml.h"

#include <QCoreApplication>

ConfigurationReading readConfiguration(const QString& path)
{
    ConfigurationReading reading;
    const std::optional<QByteArray> bytes = readResumeFile(path, &reading.error);
    if (!bytes) {
        return reading;
    }
    const std::optional<ResumeFile> content = unpackResumeFile(*bytes);
    const std::optional<SavedWork> work = content ? readResumeXml(content->xml) : std::nullopt;
    if (work) {
        reading.configuration = {*work, content->scenes};
    } else {
        reading.error = QCoreApplication::translate(
            "Configuration", "It is no configuration of this wizard, or it is damaged.");
    }
    return reading;
}
