#include "configurationfile.h"

#include "configuration.h"
#include "missingdevices.h"
#include "tesseldoc.h"

#include <QCoreApplication>
#include <QFileInfo>

ConfigurationFile::ConfigurationFile(TesselDoc* doc, const QString& path)
    : m_doc(doc)
    , m_path(QFileInfo(path).absoluteFilePath())
    , m_configuration(std::make_unique<Configuration>())
{
}

ConfigurationFile::~ConfigurationFile() = default;

bool ConfigurationFile::read()
{
    const ConfigurationReading reading = readConfiguration(m_path);
    *m_configuration = reading.configuration.value_or(Configuration());
    m_error = reading.error;
    if (m_configuration->work.hasForeignElement) {
        m_error = QCoreApplication::translate(
            "ConfigurationFile",
            "It holds something that this version of the wizard does not know.");
    }
    return m_error.isEmpty();
}

bool ConfigurationFile::load()
{
    const QList<SavedDevice> missing = m_doc->takeOver(*m_configuration);
    m_isDeviceMissing = !missing.isEmpty();
    if (m_isDeviceMissing) {
        warnOfMissingDevices(missing);
    }
    return !m_isDeviceMissing;
}
