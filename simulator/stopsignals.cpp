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

#else

StopSignals::StopSignals(QObject* parent)
    : QObject(parent)
{
}

#endif
