#include "console.h"

#include <QByteArray>
#include <QString>

#include <cstdio>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#include <string>
#include <windows.h>
#endif

namespace {

bool put(FILE* stream, const QByteArray& bytes)
{
    return std::fputs(bytes.constData(), stream) >= 0 && std::fflush(stream) == 0;
}

#ifdef Q_OS_WIN

/// In letters, since a console takes bytes for those of another character set than the system's.
bool show(const QString& text)
{
    const HANDLE console =
        ::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                      nullptr, OPEN_EXISTING, 0, nullptr);
    if (console == INVALID_HANDLE_VALUE) {
        return false;
    }
    DWORD count = 0;
    const std::wstring letters = text.toStdWString();
    const BOOL written =
        ::WriteConsoleW(console, letters.data(), DWORD(letters.size()), &count, nullptr);
    ::CloseHandle(console);
    return written != 0 && count == letters.size();
}

/// Whether a stream leads into a file or another program.
bool isLedAway(int descriptor)
{
    DWORD mode = 0;
    return descriptor >= 0 &&
           ::GetConsoleMode(reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor)), &mode) == 0;
}

// Here a program with windows has no streams, but for those that its starter led into a file or
// another program. What would go to the others goes to the console that it was started from. It is
// let go again at once: whoever closes that console, or presses Ctrl+C in it, ends what is
// attached.
bool write(FILE* stream, const QString& text)
{
    if (const int descriptor = ::_fileno(stream); isLedAway(descriptor)) {
        // Letters and line ends are those of other systems.
        ::_setmode(descriptor, _O_BINARY);
        return put(stream, text.toUtf8());
    }
    const bool attached = ::AttachConsole(ATTACH_PARENT_PROCESS) != 0;
    const bool written = show(text);
    if (attached) {
        ::FreeConsole();
    }
    return written;
}

#else

bool write(FILE* stream, const QString& text)
{
    return put(stream, text.toLocal8Bit());
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
