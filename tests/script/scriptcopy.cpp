#include "scriptcopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr int patienceMs = 30000;

QDir scripts()
{
    return QDir(QStringLiteral(TESSEL_SCRIPT_FOLDER));
}

} // namespace

ScriptCopy::ScriptCopy()
{
    const QString trial = QStringLiteral("packaging/debian/trial");
    QDir(m_checkout.path()).mkdir(QStringLiteral("script"));
    QDir(m_checkout.path()).mkpath(QFileInfo(trial).path());
    QFile::copy(scripts().filePath(QStringLiteral("../") + trial), m_checkout.filePath(trial));
    for (const QString& file : scripts().entryList(QDir::Files)) {
        QFile::copy(scripts().filePath(file),
                    m_checkout.filePath(QStringLiteral("script/") + file));
    }
    for (const char* tool : {"bash", "cat", "chmod", "env", "grep", "head", "id", "ln", "mkdir",
                             "readlink", "rm", "sed", "sleep", "sort", "true", "uname"}) {
        giveOwn(QString::fromLatin1(tool));
    }
}

QStringList ScriptCopy::names()
{
    return scripts().entryList(QDir::Files | QDir::Executable);
}

void ScriptCopy::give(const QString& program, const QString& body)
{
    QFile::remove(pathOf(program));
    QFile file(pathOf(program));
    if (file.open(QIODevice::WriteOnly)) {
        file.write("#!/bin/sh\n" + body.toUtf8() + '\n');
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
}

void ScriptCopy::giveOwn(const QString& program)
{
    QFile::link(QStandardPaths::findExecutable(program), pathOf(program));
}

void ScriptCopy::giveUser(bool maySudo)
{
    give(QStringLiteral("id"), QStringLiteral("echo 1000"));
    // Like the real one it passes nothing of the environment on.
    give(QStringLiteral("sudo"),
         maySudo ? QStringLiteral("[ \"$1\" != -n ] || shift\n"
                                  "[ \"$1\" != true ] || exit 0\n"
                                  "exec env -i PATH=\"$PATH\" LOG=\"$LOG\" \"$@\"")
                 : QStringLiteral("echo \"sudo $*\" >>\"$LOG\"; exit 1"));
}

void ScriptCopy::givePackages(bool installed)
{
    give(QStringLiteral("dpkg-query"),
         installed ? QStringLiteral("echo 'install ok installed'") : QStringLiteral("exit 1"));
    give(QStringLiteral("apt-get"),
         QStringLiteral("echo \"$DEBIAN_FRONTEND|$*|$(cat)\" >>\"$LOG\""));
}

void ScriptCopy::leave(const QString& path, const QByteArray& content) const
{
    const QFileInfo place(m_checkout.filePath(path));
    QDir().mkpath(place.path());
    QFile file(place.filePath());
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}

QByteArray ScriptCopy::read(const QString& path) const
{
    QFile file(m_checkout.filePath(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ScriptRun ScriptCopy::run(const QString& script, const QStringList& arguments,
                          QProcessEnvironment environment) const
{
    QProcess process;
    environment.insert(QStringLiteral("PATH"), m_programs.path());
    environment.insert(QStringLiteral("LOG"), pathOf(QStringLiteral("log")));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_checkout.path());
    process.start(m_checkout.filePath(QStringLiteral("script/") + script), arguments);
    process.write("an answer to a question\n");
    process.closeWriteChannel();
    if (!process.waitForFinished(patienceMs)) {
        return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString ScriptCopy::log() const
{
    QFile file(pathOf(QStringLiteral("log")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList ScriptCopy::leftBehind() const
{
    QStringList names =
        QDir(m_checkout.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeOne(QStringLiteral("script"));
    names.removeOne(QStringLiteral("packaging"));
    return names;
}

QString ScriptCopy::pathOf(const QString& name) const
{
    return m_programs.filePath(name);
}
