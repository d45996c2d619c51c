#include "consent.h"

#include "interruption.h"
#include "terminal.h"

#include <QByteArray>

#include <array>

#ifdef Q_OS_WIN
#include <QCoreApplication>
#include <QFile>
#include <cstdio>
#else
#include <QEventLoop>
#include <QSocketNotifier>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_WIN

/// A console tells no event loop that a line is there, so the loop stands still until then; Ctrl+C
/// ends the reading.
QByteArray typedLine(const Interruption& /*interruption*/)
{
    QFile input;
    const QByteArray line =
        input.open(stdin, QIODevice::ReadOnly) ? input.readLine() : QByteArray();
    QCoreApplication::processEvents();
    return line;
}

#else

/// The next line of standard input, or what there is of it at its end or at an interruption.
QByteArray typedLine(const Interruption& interruption)
{
    QByteArray line;
    if (::fcntl(STDIN_FILENO, F_GETFD) == -1) {
        return line; // closed: nothing ever comes
    }
    QSocketNotifier typed(STDIN_FILENO, QSocketNotifier::Read);
    QEventLoop untilThere;
    QObject::connect(&typed, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)),
                     &untilThere, SLOT(quit()));
    QObject::connect(&interruption, SIGNAL(interrupted()), &untilThere, SLOT(quit()));
    ssize_t count = 1;
    while (count > 0 && !line.contains('\n')) {
        untilThere.exec();
        std::array<char, 256> letters{};
        count = interruption.hasCome() ? 0 : ::read(STDIN_FILENO, letters.data(), letters.size());
        line.append(letters.data(), count > 0 ? int(count) : 0);
    }
    return line;
}

#endif

} // namespace

Consent askForConsent(const QString& question, Terminal& terminal)
{
    const Interruption interruption;
    terminal.say(question);
    const QByteArray line = terminal.flush() ? typedLine(interruption) : QByteArray();
    const QByteArray answer = line.left(line.indexOf('\n')).trimmed().toLower();
    if (interruption.hasCome()) {
        return Consent::Interrupted;
    }
    return answer == "y" || answer == "yes" ? Consent::Given : Consent::Refused;
}
