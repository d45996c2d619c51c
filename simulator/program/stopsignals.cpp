#include "stopsignals.h"

#ifdef Q_OS_UNIX

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <unistd.h>

namespace {

// A signal handler may do next to nothing; writing a byte is allowed and wakes the event loop.
std::array<int, 2> pipeEnds = {-1, -1};

extern "C" void wakeEventLoop(int /*signal*/)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
}

} // namespace

StopSignals::StopSignals(QObject* parent)
    : QObject(parent)
{
    if (::pipe(pipeEnds.data()) != 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), this,
            SIGNAL(stopAsked()));
    std::signal(SIGINT, wakeEventLoop);
    std::signal(SIGTERM, wakeEventLoop);
}

StopSignals::~StopSignals()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

#elif defined(Q_OS_WIN)

#include <windows.h>

namespace {

StopSignals* receiver = nullptr;

// Called in a thread of the system's own.
BOOL WINAPI wakeEventLoop(DWORD event)
{
    const bool isWish = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
    return isWish && QMetaObject::invokeMethod(receiver, "stopAsked", Qt::QueuedConnection);
}

} // namespace

StopSignals::StopSignals(QObject* parent)
    : QObject(parent)
{
    receiver = this;
    ::SetConsoleCtrlHandler(wakeEventLoop, TRUE);
}

StopSignals::~StopSignals()
{
    ::SetConsoleCtrlHandler(wakeEventLoop, FALSE);
}

#endif
