#include "terminal.h"
#include "toolprogram.h"

#include <QFile>

#include <csignal>
#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool isPersonWatching(FILE* stream)
{
#ifdef Q_OS_WIN
    return ::_isatty(::_fileno(stream)) != 0;
#else
    return ::isatty(::fileno(stream)) != 0;
#endif
}

/// What the wizard's classes note for those who work on them is no talk for users, nor is what Qt
/// says of folders that a session without a desktop has not.
void passWarningsOn(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    const bool isNote = type == QtDebugMsg || type == QtInfoMsg;
    if (!isNote && !text.startsWith(u"QStandardPaths: ")) {
        std::fputs((text + u'\n').toUtf8().constData(), stderr);
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
    QStringList arguments;
    for (int index = 0; index < argc; ++index) {
        arguments.append(QString::fromLocal8Bit(argv[index]));
    }
    QFile output;
    QFile errors;
    if (!output.open(stdout, QIODevice::WriteOnly) || !errors.open(stderr, QIODevice::WriteOnly)) {
        return int(ExitCode::CouldNotBeTried);
    }
    Terminal terminal(&output, &errors, isPersonWatching(stderr));
    return int(runTool(allCommands(), arguments, terminal));
}
