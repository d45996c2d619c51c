#pragma once

#include "exitcode.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class Command;

/// What came of one run of a command inside the test.
struct CommandRun
{
    ExitCode code = ExitCode::AllIsWell;
    QString output;
    QString errors;
};

/// Runs it with these arguments, which have to fit its syntax.
CommandRun runCommand(const Command& command, const QStringList& arguments);

/// A hall of four rooms, each with a hub, a microphone and two speakers, one of them renamed, and
/// with two layouts, as people write it.
QByteArray sampleHallText();

/// What this system says of a file that is not there.
QString wordsForMissingFile();

/// Writes a file or reads one whole; a failure fails the test.
void putFile(const QString& path, const QByteArray& bytes);
QByteArray fileAt(const QString& path);

/// The text with the only `before` in it replaced; that there is none fails the test.
QByteArray changed(QByteArray text, const QByteArray& before, const QByteArray& after);

/// The first line that is wider than a terminal; empty when none is.
QString lineThatIsTooWide(const QString& text);
