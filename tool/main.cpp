#include "standardstreams.h"
#include "terminal.h"
#include "texttable.h"
#include "toolprogram.h"

#include <QFile>

#include <csignal>
#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
// Needs what is declared above.
#include <shellapi.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_WIN
/// A console that moves its cursor when it is told so.
bool isPersonWatching(FILE* stream)
{
    const auto console = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
    DWORD mode = 0;
    return ::GetConsoleMode(console, &mode) != 0 &&
           ::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

int toldWidth(FILE* stream)
{
    const auto console = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
    CONSOLE_SCREEN_BUFFER_INFO info{};
    return ::GetConsoleScreenBufferInfo(console, &info) != 0 ? info.dwSize.X : 0;
}

/// Not those of main(), which have only the letters of the system's old character set.
QStringList givenArguments(int /*argc*/, char** /*argv*/)
{
    int count = 0;
    wchar_t** const texts = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    QStringList arguments;
    for (int index = 0; index < count; ++index) {
        arguments.append(QString::fromWCharArray(texts[index]));
    }
    ::LocalFree(texts);
    return arguments;
}
#else
QStringList givenArguments(int argc, char** argv)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index) {
        arguments.append(QString::fromLocal8Bit(argv[index]));
    }
    return arguments;
}

bool isPersonWatching(FILE* stream)
{
    return ::isatty(::fileno(stream)) != 0;
}

int toldWidth(FILE* stream)
{
    winsize size{};
    return ::ioctl(::fileno(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}
#endif

/// In columns.
int terminalWidth(FILE* stream)
{
    const int width = toldWidth(stream);
    return width > 0 ? width : TextTable::usualWidth;
}

/// What the wizard's classes note for those who work on them is no talk for users, nor is what Qt
/// says of folders that a session without a desktop has not.
void passWarningsOn(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    const bool isNote = type == QtDebugMsg || type == QtInfoMsg;
    if (!isNote && !text.startsWith(u"QStandardPaths: ")) {
        std::fputs((text + u'\n').toUtf8().constData(), stderr);
        std::fflush(stderr);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(passWarningsOn);
#ifdef Q_OS_UNIX
    // Ctrl+C ends what reads this tool's output first: what is left to put right is still done.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    const StandardStreams streams;
    const QStringList arguments = givenArguments(argc, argv);
    QFile output;
    QFile errors;
    if (!output.open(stdout, QIODevice::WriteOnly) || !errors.open(stderr, QIODevice::WriteOnly)) {
        return int(ExitCode::CouldNotBeTried);
    }
    Terminal terminal(&output, &errors, isPersonWatching(stderr), terminalWidth(stderr));
    return int(runTool(allCommands(), arguments, terminal));
}
