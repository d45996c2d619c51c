#include "installwatch.h"

#include "install.h"
#include "installhall.h"
#include "presetfilesender.h"
#include "stillness.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QSignalSpy>
#include <QTcpSocket>

#include <algorithm>
#include <utility>

namespace {

constexpr int longestWaitMs = 60000;

/// Everything that hubs and user have done so far.
qsizetype activity(const InstallHall& step)
{
    qsizetype sum = step.answers.prompts().size();
    for (const SimulatedHub* hub : step.hall.hubs()) {
        sum += hub->journal().size();
    }
    return sum;
}

/// The statuses do not tell: a refused recall is reported while the run still goes on.
bool isOver(const QWidget& page)
{
    const auto senders = page.findChildren<PresetFileSender*>();
    return std::none_of(senders.begin(), senders.end(),
                        [](const PresetFileSender* sender) { return sender->isRunning(); });
}

} // namespace

PresetFileSender* senderOf(const QWidget& page, const QString& address)
{
    for (auto* sender : page.findChildren<PresetFileSender*>()) {
        const auto* socket = sender->findChild<QTcpSocket*>();
        if (socket && socket->peerName() == address) {
            return sender;
        }
    }
    return nullptr;
}

// The waiting functions of Qt Test would sleep between any two events.
bool waitUntilOver(const QWidget& page)
{
    QSignalSpy changed(page.findChild<Install*>(), SIGNAL(statusChanged()));
    const QDeadlineTimer patience(longestWaitMs);
    while (!isOver(page) && !patience.hasExpired()) {
        changed.wait(int(patience.remainingTime()));
    }
    return isOver(page);
}

void waitUntilQuiet(const InstallHall& step)
{
    qsizetype before = activity(step);
    waitUntilStill([&step, &before] {
        const qsizetype last = std::exchange(before, activity(step));
        return before != last || QApplication::activeModalWidget();
    });
}
