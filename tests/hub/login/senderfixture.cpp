#include "senderfixture.h"

#include "hubdialog.h"

namespace {

constexpr int waitMs = 60000;

} // namespace

SenderFixture::SenderFixture(const QString& hubAddress)
    : hub(hubAddress)
    , peer(hubAddress,
           [this](const QByteArray& request, qsizetype number) { return script(request, number); })
    , sender(new PresetFileSender(hubAddress, QStringLiteral("Hub A"), &doc, page.get()))
    , finished(std::make_unique<QSignalSpy>(sender, SIGNAL(finished(QString, int))))
    , answer([](HubDialog* dialog, int) { submitPassword(dialog, password()); })
    , watcher([this](HubDialog* dialog, int count) { answer(dialog, count); })
{
    doc.names = {QStringLiteral("One"), QStringLiteral("Two")};
    doc.devices = {{1, {QStringLiteral("10.0.0.21")}}};
    doc.deviceFiles = {{QStringLiteral("10.0.0.21"), QStringLiteral("<device/>\n")}};
}

bool SenderFixture::logIn()
{
    sender->start();
    return waitForLogIn();
}

// Spies wait in an event loop of their own; the waiting macros would sleep between any two events.
bool SenderFixture::waitForLogIn()
{
    QSignalSpy spy(sender, SIGNAL(completedLogin()));
    return sender->isLoggedIn() || spy.wait(waitMs);
}

bool SenderFixture::waitForOutcome(int count)
{
    while (finished->count() < count) {
        if (!finished->wait(waitMs)) {
            return false;
        }
    }
    return true;
}

bool SenderFixture::install(int count)
{
    if (!logIn()) {
        return false;
    }
    sender->sendPresets();
    return waitForOutcome(count);
}

QString SenderFixture::outcomes() const
{
    QStringList results;
    for (const QList<QVariant>& arguments : *finished) {
        results.append(arguments.at(1).toString());
    }
    return results.join(u' ');
}
