#include "console.h"

#include <QByteArray>
#include <QString>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#endif

namespace {

#ifdef Q_OS_WIN

// Here a program with windows has no streams, but for those that its starter led into a file or
// another program. The others are led to the console that it was started from.
void open(FILE* stream)
{
    if (::_fileno(stream) >= 0) {
        return;
    }
    if (::AttachConsole(ATTACH_PARENT_PROCESS) || ::GetLastError() == ERROR_ACCESS_DENIED) {
        [[maybe_unused]] const FILE* opened = std::freopen("CONOUT$", "w", stream);
    }
}

#else

void open(FILE* /*stream*/) {}

#endif

bool write(FILE* stream, const QString& text)
{
    open(stream);
    return std::fputs(text.toLocal8Bit().constData(), stream) >= 0 && std::fflush(stream) == 0;
}

} // namespace

bool writeToOutput(const QString& text)
{
    return write(stdout, text);
}

void writeToErrors(const QString& text)
{
    write(stderr, text);
}
