#pragma once

#include <QString>
#include <QStringList>

/// What came of one run of the built program.
struct ToolRun
{
    int exitCode = -1; ///< -1 when it did not end by itself
    QString output;
    QString errors;
};

/// Without what Wine says of itself when pictures are made, which Windows does not.
QString withoutWine(QString errors);

/// Runs it to its end where there is no display, with standard output led into `outputFile` if one
/// is named.
ToolRun runBuiltTool(const QStringList& arguments, const QString& outputFile = {});

/// Whether the text is one line that begins with the program's name.
bool isOneLine(const QString& errors);
