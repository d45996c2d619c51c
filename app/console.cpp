#include "console.h"

#include <QByteArray>
#include <QString>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#endif

namespace {

bool put(FILE* stream, const QString& text)
{
    return std::fputs(text.toLocal8Bit().constData(), stream) >= 0 && std::fflush(stream) == 0;
}

#ifdef Q_OS_WIN

// Here a program with windows has no streams, but for those that its starter led into a file or
// another program. What would go to the others goes to the console that it was started from. It is
// let go again at once: whoever closes that console, or presses Ctrl+C in it, ends what is
// attached.
bool write(FILE* stream, const QString& text)
{
    if (::_fileno(stream) >= 0) {
        return put(stream, text);
    }
    const bool attached = ::AttachConsole(ATTACH_PARENT_PROCESS) != 0;
    FILE* console = std::fopen("CONOUT$", "w");
    const bool written = console != nullptr && put(console, text);
    if (console != nullptr) {
        std::fclose(console);
    }
    if (attached) {
        ::FreeConsole();
    }
    return written;
}

#else

bool write(FILE* stream, const QString& text)
{
    return put(stream, text);
}

#endif

} // namespace

bool writeToOutput(const QString& text)
{
    return write(stdout, text);
}

void writeToErrors(const QString& text)
{
    write(stderr, text);
}
