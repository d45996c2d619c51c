#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// How a program ended.
struct ProgramRun
{
    int exitCode = -1; ///< -1 when it did not end by itself
    QString output;
    QString errors;
};

/// Runs a program to its end where there is no display.
ProgramRun runProgram(const QString& program, const QStringList& arguments);

/// All that is delivered, installed into a folder of its own.
class InstalledTree
{
public:
    InstalledTree();

    /// Why it could not be installed; empty when it could.
    QString fault() const { return m_fault; }

    /// The place of an installed file.
    QString path(const QString& file) const { return m_folder.filePath(file); }

    /// What is in an installed file.
    QByteArray contents(const QString& file) const;

    /// All installed files, sorted.
    QStringList files() const;

private:
    QTemporaryDir m_folder;
    QString m_fault;
};
