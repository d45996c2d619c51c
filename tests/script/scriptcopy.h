#pragma once

#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

/// How a script ended.
struct ScriptRun
{
    int exitCode = -1;
    QString output;
    QString errors;
};

/// A copy of all scripts, and of the package's trial, in a folder of its own, where they find no
/// programs but the few that are there from the beginning and those that a test gives them: nothing
/// is installed or built.
class ScriptCopy
{
public:
    ScriptCopy();

    /// The names of all scripts that people start.
    static QStringList names();

    /// Gives the scripts a program, as a script of the system's shell. What it appends to "$LOG" is
    /// read by log().
    void give(const QString& program, const QString& body);
    /// Gives them a program of this system.
    void giveOwn(const QString& program);
    /// Gives them `sudo`, which works or refuses, and `id`, which tells an ordinary user.
    void giveUser(bool maySudo);
    /// Gives them `dpkg-query`, which has either every package or none, and `apt-get`, which logs
    /// its frontend, its arguments and what it could read.
    void givePackages(bool installed);

    /// Leaves a file in the checkout, as an earlier call may have done.
    void leave(const QString& path, const QByteArray& content) const;

    /// What stands in a file of the checkout; nothing, where it cannot be read.
    QByteArray read(const QString& path) const;

    /// Runs a script to its end, without a terminal; its environment is `environment` and what it
    /// takes to find the programs.
    ScriptRun run(const QString& script, const QStringList& arguments,
                  QProcessEnvironment environment = {}) const;

    /// What the programs have logged.
    QString log() const;
    /// Everything that lies beside the folders of the scripts.
    QStringList leftBehind() const;

private:
    QString pathOf(const QString& name) const;

    QTemporaryDir m_checkout;
    QTemporaryDir m_programs;
};
