#include "installedtree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

namespace {

constexpr int patienceMs = 60000;

QProcessEnvironment withoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "DESTDIR"}) {
        environment.remove(QLatin1String(name));
    }
    return environment;
}

} // namespace

ProgramRun runProgram(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessEnvironment(withoutDisplay());
    process.start(program, arguments);
    if (!process.waitForFinished(patienceMs) || process.exitStatus() != QProcess::NormalExit) {
        return {-1, QString(), process.errorString()};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

InstalledTree::InstalledTree()
{
    const ProgramRun run =
        runProgram(QStringLiteral(TESSEL_CMAKE),
                   {QStringLiteral("--install"), QStringLiteral(TESSEL_BUILD_FOLDER),
                    QStringLiteral("--prefix"), m_folder.path()});
    m_fault = run.exitCode == 0 ? QString() : run.errors + QStringLiteral(" (cmake --install)");
}

QByteArray InstalledTree::contents(const QString& file) const
{
    QFile installed(path(file));
    return installed.open(QIODevice::ReadOnly) ? installed.readAll() : QByteArray();
}

QStringList InstalledTree::files() const
{
    QStringList found;
    QDirIterator walk(m_folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        found.append(QDir(m_folder.path()).relativeFilePath(walk.next()));
    }
    found.sort();
    return found;
}
