#pragma once

#include <QString>

#include <memory>

class TesselDoc;
struct Configuration;

/// The configuration file that the wizard was started with. It belongs to the user: nobody deletes
/// it, and only their "Yes" on closing replaces it.
class ConfigurationFile
{
public:
    /// `doc` is not owned and outlives this object.
    ConfigurationFile(TesselDoc* doc, const QString& path);
    ConfigurationFile(const ConfigurationFile&) = delete;
    ConfigurationFile& operator=(const ConfigurationFile&) = delete;
    ConfigurationFile(ConfigurationFile&&) = delete;
    ConfigurationFile& operator=(ConfigurationFile&&) = delete;
    ~ConfigurationFile();

    /// Where it is, as an absolute path.
    const QString& path() const { return m_path; }

    /// Reads it. False when not all of it can be read: then fault() names the place and the reason,
    /// and nothing of it is taken.
    bool read();
    const QString& fault() const { return m_fault; }

    /// Puts what read() has read into the document, but for placed devices that are not there: the
    /// user is told of these, and the result is false.
    bool load();

    /// Whether the file may hold more than the document: it was not read, or load() left devices
    /// out.
    bool holdsMore() const { return !m_fault.isEmpty() || m_isDeviceMissing; }

private:
    TesselDoc* m_doc;
    QString m_path;
    std::unique_ptr<Configuration> m_configuration; ///< empty before read()
    QString m_fault;
    bool m_isDeviceMissing = false;
};
