#pragma once

#include "networkrun.h"
#include "testcase.h"

#include <QTemporaryDir>

/// Base of the tests that run the built tool across a cable, on files of one folder. Where the
/// system refuses such a cable, they are skipped.
class CableTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

protected:
    /// The path of a file in the folder.
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    /// Writes such a file.
    void put(const char* name, const QByteArray& bytes) const;

    /// Runs "tesselctl COMMAND" in the folder, beside the simulated hall of this description; where
    /// a search has a second, which is enough. `before` are commands of a shell that come first.
    NetworkRun runTool(const QByteArray& hall, const QString& command,
                       const QString& before = {}) const;

private:
    QTemporaryDir m_folder;
};
