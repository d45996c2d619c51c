#include "interruption.h"

#ifdef Q_OS_UNIX

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <unistd.h>

namespace {

std::array<int, 2> wakeUpPipe = {-1, -1};

// Of all that wakes an event loop, a handler may do no more than write a byte.
extern "C" void noteInterruption(int number)
{
    // A closed terminal tells it twice, by the system and by the shell: that is nobody's wish to
    // leave at once.
    std::signal(number, number == SIGHUP ? SIG_IGN : SIG_DFL);
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(wakeUpPipe[1], &byte, 1);
}

// Left alone where it is ignored: nohup lets a program outlive its terminal that way.
void replaceHangUpHandler(void (*handler)(int))
{
    if (std::signal(SIGHUP, handler) == SIG_IGN) {
        std::signal(SIGHUP, SIG_IGN);
    }
}

} // namespace

Interruption::Interruption(QObject* parent)
    : QObject(parent)
{
    if (::pipe(wakeUpPipe.data()) != 0) {
        return;
    }
    auto* const notifier = new QSocketNotifier(wakeUpPipe[0], QSocketNotifier::Read, this);
    connect(notifier, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), notifier,
            SLOT(deleteLater()));
    connect(notifier, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), this,
            SLOT(note()));
    std::signal(SIGINT, noteInterruption);
    std::signal(SIGQUIT, noteInterruption);
    std::signal(SIGTERM, noteInterruption);
    replaceHangUpHandler(noteInterruption);
}

Interruption::~Interruption()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGQUIT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    replaceHangUpHandler(SIG_DFL);
    for (int& end : wakeUpPipe) {
        ::close(end);
        end = -1;
    }
}

#elif defined(Q_OS_WIN)

#include <atomic>
#include <windows.h>

namespace {

std::atomic<Interruption*> listener = nullptr;
HANDLE listeningThread = nullptr;

// Runs in a thread of the system's own; what it does not take, ends the program.
BOOL WINAPI noteInterruption(DWORD event)
{
    const bool isClosing = event == CTRL_CLOSE_EVENT;
    const bool isMeant = isClosing || event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
    Interruption* const first = isMeant ? listener.exchange(nullptr) : nullptr;
    const bool isTaken =
        first != nullptr && QMetaObject::invokeMethod(first, "note", Qt::QueuedConnection);
    if (isTaken) {
        // It may be waiting for a line of the console, and hears of nothing else meanwhile.
        ::CancelSynchronousIo(listeningThread);
    }
    if (isClosing) {
        // The program ends when this returns. So it ends by itself, or when the system has waited
        // long enough.
        ::Sleep(INFINITE);
    }
    return isTaken;
}

} // namespace

Interruption::Interruption(QObject* parent)
    : QObject(parent)
{
    ::DuplicateHandle(::GetCurrentProcess(), ::GetCurrentThread(), ::GetCurrentProcess(),
                      &listeningThread, 0, FALSE, DUPLICATE_SAME_ACCESS);
    listener = this;
    ::SetConsoleCtrlHandler(noteInterruption, TRUE);
}

Interruption::~Interruption()
{
    ::SetConsoleCtrlHandler(noteInterruption, FALSE);
    listener = nullptr;
    ::CloseHandle(listeningThread);
}

#endif

void Interruption::note()
{
    m_hasCome = true;
    Q_EMIT interrupted();
}
