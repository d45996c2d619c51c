#include "configurationfile.h"

#include "configuration.h"
#include "missingdevices.h"
#include "tesseldoc.h"

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
    m_fault = reading.fault;
    // A part of it would be taken for the whole, and replace it in the end.
    *m_configuration = m_fault.isEmpty() ? *reading.configuration : Configuration();
    return m_fault.isEmpty();
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
