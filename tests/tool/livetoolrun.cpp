#include "livetoolrun.h"

#include <QTest>

#include <array>
#include <csignal>
#include <unistd.h>

namespace {

constexpr int patience = 60000; // milliseconds

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

} // namespace

LiveToolRun::LiveToolRun(const QStringList& arguments, const QByteArray& typed, Reader reader)
{
    if (reader == Reader::Gone) {
        m_program.setChildProcessModifier(writeIntoBrokenPipe);
    }
    // Tests that are run by nohup would start it without.
    std::signal(SIGHUP, SIG_DFL);
    m_program.start(QStringLiteral(TESSEL_TOOL), arguments);
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
    ::kill(static_cast<pid_t>(m_program.processId()), SIGINT);
}

void LiveToolRun::closeTerminal()
{
    ::kill(static_cast<pid_t>(m_program.processId()), SIGHUP);
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
            m_said + QString::fromUtf8(m_program.readAllStandardError())};
}
