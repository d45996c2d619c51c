#include "ptytoolrun.h"

#include <QTest>

#ifdef Q_OS_UNIX
#include <array>
#include <csignal>
#include <cstdlib>
#include <utility>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#endif

namespace {

constexpr int patience = 60000; // milliseconds

} // namespace

PtyToolRun::PtyToolRun(const QStringList& arguments)
    : PtyToolRun(arguments, {})
{
}

#ifdef Q_OS_UNIX

bool PtyToolRun::isPossible()
{
    return true;
}

PtyToolRun::PtyToolRun(const QStringList& arguments, const Setting& setting)
    : m_keyboard(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    ::grantpt(m_keyboard);
    ::unlockpt(m_keyboard);
    m_terminal = ::open(::ptsname(m_keyboard), O_RDWR | O_NOCTTY | O_CLOEXEC);
    const winsize size{
        .ws_row = 0, .ws_col = ushort(setting.columns), .ws_xpixel = 0, .ws_ypixel = 0};
    ::ioctl(m_terminal, TIOCSWINSZ, &size);
    const int terminal = m_terminal;
    m_program.setChildProcessModifier([terminal, setting] {
        std::signal(SIGHUP, setting.hearsHangUp ? SIG_DFL : SIG_IGN);
        ::setsid();
        ::ioctl(terminal, TIOCSCTTY, 0);
        ::dup2(terminal, STDIN_FILENO);
        if (setting.errorsOnScreen) {
            ::dup2(terminal, STDERR_FILENO);
        }
    });
    m_program.start(QStringLiteral(TESSEL_TOOL), arguments);
}

void PtyToolRun::type(const QByteArray& keys) const
{
    QCOMPARE(::write(m_keyboard, keys.constData(), size_t(keys.size())), keys.size());
}

bool PtyToolRun::isEchoing() const
{
    termios mode{};
    ::tcgetattr(m_terminal, &mode);
    return (mode.c_lflag & tcflag_t(ECHO)) != 0;
}

void PtyToolRun::signal(int number) const
{
    QCOMPARE(::kill(pid_t(m_program.processId()), number), 0);
}

void PtyToolRun::closeTerminal()
{
    for (int* end : {&m_terminal, &m_keyboard}) {
        if (const int descriptor = std::exchange(*end, -1); descriptor >= 0) {
            ::close(descriptor);
        }
    }
}

void PtyToolRun::look()
{
    std::array<char, 4096> bytes{};
    ssize_t count = 0;
    while ((count = ::read(m_keyboard, bytes.data(), bytes.size())) > 0) {
        m_shown += QString::fromUtf8(bytes.data(), count);
    }
}

#else

bool PtyToolRun::isPossible()
{
    return false;
}

PtyToolRun::PtyToolRun(const QStringList& /*arguments*/, const Setting& /*setting*/) {}

void PtyToolRun::type(const QByteArray& /*keys*/) const {}

bool PtyToolRun::isEchoing() const
{
    return false;
}

void PtyToolRun::signal(int /*number*/) const {}

void PtyToolRun::closeTerminal() {}

void PtyToolRun::look() {}

#endif

PtyToolRun::~PtyToolRun()
{
    m_program.kill();
    m_program.waitForFinished();
    closeTerminal();
}

bool PtyToolRun::hasShown(const QString& words)
{
    return QTest::qWaitFor(
        [this, &words] {
            look();
            const qsizetype place = m_shown.indexOf(words, m_seen);
            m_seen = place < 0 ? m_seen : place + words.size();
            return place >= 0;
        },
        patience);
}

ToolRun PtyToolRun::ended()
{
    const bool isOver =
        QTest::qWaitFor([this] { return m_program.state() == QProcess::NotRunning; }, patience);
    look();
    const bool isByItself = isOver && m_program.exitStatus() == QProcess::NormalExit;
    return {isByItself ? m_program.exitCode() : -1,
            QString::fromUtf8(m_program.readAllStandardOutput()),
            m_shown + QString::fromUtf8(m_program.readAllStandardError())};
}
