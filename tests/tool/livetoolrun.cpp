#include "livetoolrun.h"

#include "ctrlc.h"

#include <QTest>

#ifdef Q_OS_UNIX
#include <array>
#include <csignal>
#include <unistd.h>
#endif

namespace {

constexpr int patience = 60000; // milliseconds

#ifdef Q_OS_UNIX
/// In the program itself, before it begins.
void writeIntoBrokenPipe()
{
    std::array<int, 2> ends = {-1, -1};
    if (::pipe(ends.data()) == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::dup2(ends[1], STDERR_FILENO);
        ::close(ends[1]);
        ::close(ends[0]);
    }
}
#endif

} // namespace

bool LiveToolRun::knowsLostTerminals()
{
#ifdef Q_OS_UNIX
    return true;
#else
    return false;
#endif
}

LiveToolRun::LiveToolRun(const QStringList& arguments, const QByteArray& typed, Reader reader)
{
#ifdef Q_OS_UNIX
    if (reader == Reader::Gone) {
        m_program.setChildProcessModifier(writeIntoBrokenPipe);
    }
    // Tests that are run by nohup would start it without.
    std::signal(SIGHUP, SIG_DFL);
#else
    Q_UNUSED(reader)
#endif
    m_program.setProgram(QStringLiteral(TESSEL_TOOL));
    m_program.setArguments(arguments);
    startWithConsole(m_program);
    m_program.write(typed);
    m_program.closeWriteChannel();
}

LiveToolRun::~LiveToolRun()
{
    m_program.kill();
    m_program.waitForFinished();
}

bool LiveToolRun::hasSaid(const QString& words)
{
    return QTest::qWaitFor(
        [this, &words] {
            m_said += QString::fromUtf8(m_program.readAllStandardError());
            return m_said.contains(words);
        },
        patience);
}

void LiveToolRun::interrupt()
{
    pressCtrlC(m_program);
}

void LiveToolRun::closeTerminal()
{
#ifdef Q_OS_UNIX
    ::kill(static_cast<pid_t>(m_program.processId()), SIGHUP);
#endif
}

bool LiveToolRun::isKilled() const
{
    return m_program.state() == QProcess::NotRunning &&
           m_program.exitStatus() == QProcess::CrashExit;
}

ToolRun LiveToolRun::ended()
{
    const bool isOver =
        QTest::qWaitFor([this] { return m_program.state() == QProcess::NotRunning; }, patience);
    const bool isByItself = isOver && m_program.exitStatus() == QProcess::NormalExit;
    return {isByItself ? m_program.exitCode() : -1,
            QString::fromUtf8(m_program.readAllStandardOutput()),
            withoutWine(m_said + QString::fromUtf8(m_program.readAllStandardError()))};
}
