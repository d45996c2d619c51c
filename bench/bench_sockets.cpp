// Identifying devices and installing presets, each beside bare sockets that send the same bytes to
// the same peer. Run it on one CPU (taskset -c 0): across two, waking the other end costs more than
// all that is measured.

#include "bareconversation.h"
#include "benchdocument.h"
#include "benchpair.h"
#include "cannedpeer.h"
#include "countdown.h"
#include "deviceinforeceiver.h"
#include "installdesk.h"
#include "installrun.h"
#include "presetfilesender.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

constexpr int mostDevices = 1000;
constexpr quint16 textPort = SCPCommandSender::port;
constexpr quint16 webPort = 80;
constexpr HallSize hall{4, 64, 10}; // 16 peripherals per hub

QStringList addresses(int count)
{
    QStringList list;
    for (int device = 0; device < count; ++device) {
        list.append(benchAddress(device));
    }
    return list;
}

QList<QByteArray> identityQuestions()
{
    return {"devinfo deviceid\n", "devinfo deviceid\n", "devinfo devicename\n",
            "devinfo version\n",  "devinfo serialno\n", "sscurrent_ex config\n"};
}

void identifyBare(int devices, Stopwatch& watch)
{
    std::vector<std::unique_ptr<BareConversation>> peers;
    Countdown countdown(devices);
    watch.start();
    for (const QString& address : addresses(devices)) {
        peers.push_back(std::make_unique<BareConversation>(address, textPort, identityQuestions()));
        QObject::connect(peers.back().get(), SIGNAL(connected()), peers.back().get(),
                         SLOT(begin()));
        QObject::connect(peers.back().get(), SIGNAL(finished()), &countdown, SLOT(done()));
        peers.back()->connectToPeer();
    }
    countdown.wait();
    watch.stop();
}

void identify(int devices, Stopwatch& watch)
{
    std::vector<std::unique_ptr<DeviceInfoReceiver>> receivers;
    Countdown countdown(devices);
    watch.start();
    for (const QString& address : addresses(devices)) {
        receivers.push_back(std::make_unique<DeviceInfoReceiver>(QHostAddress(address), nullptr));
        QObject::connect(receivers.back().get(), SIGNAL(deviceInfoReceived()), &countdown,
                         SLOT(done()));
        receivers.back()->start();
    }
    countdown.wait();
    watch.stop();
}

// The requests of one hub's transfer, as an installation words them.
QList<QByteArray> transferRequests(IDocAccessor& doc, const QString& hub)
{
    InstallRun run(hub, &doc);
    run.begin();
    QList<QByteArray> requests;
    const QString reply = QString::fromUtf8(CannedPeer::webReply());
    for (auto move = InstallMove::Send; move != InstallMove::EndInSuccess;) {
        if (move == InstallMove::EndLogIn) {
            run.beginTransfer();
            requests.clear();
        }
        run.setPassword(QString());
        requests.append(run.request().value().toUtf8());
        move = run.evaluate(reply);
    }
    return requests;
}

void transferBare(int hubs, const QList<QList<QByteArray>>& requests, Stopwatch& watch)
{
    std::vector<std::unique_ptr<BareConversation>> peers;
    Countdown connections(hubs);
    Countdown countdown(hubs);
    for (int hub = 0; hub < hubs; ++hub) {
        peers.push_back(
            std::make_unique<BareConversation>(benchAddress(hub), webPort, requests.at(hub)));
        QObject::connect(peers.back().get(), SIGNAL(connected()), &connections, SLOT(done()));
        QObject::connect(peers.back().get(), SIGNAL(finished()), &countdown, SLOT(done()));
        peers.back()->connectToPeer();
    }
    connections.wait();
    watch.start();
    for (const auto& peer : peers) {
        peer->begin();
    }
    countdown.wait();
    watch.stop();
}

void transfer(int hubs, IDocAccessor& doc, Stopwatch& watch)
{
    InstallDesk desk;
    std::vector<std::unique_ptr<PresetFileSender>> senders;
    Countdown logIns(hubs);
    Countdown countdown(hubs);
    desk.answerDialogs();
    for (int hub = 0; hub < hubs; ++hub) {
        senders.push_back(std::make_unique<PresetFileSender>(benchAddress(hub),
                                                             QStringLiteral("Hub"), &doc, &desk));
        QObject::connect(senders.back().get(), SIGNAL(completedLogin()), &logIns, SLOT(done()));
        QObject::connect(senders.back().get(), SIGNAL(finished(QString, int)), &countdown,
                         SLOT(done()));
        senders.back()->start();
    }
    logIns.wait();
    desk.stopAnswering();
    watch.start();
    for (const auto& sender : senders) {
        sender->sendPresets();
    }
    countdown.wait();
    watch.stop();
}

void registerIdentity(int devices, int repetitions)
{
    registerPair(
        QStringLiteral("identify%1").arg(devices), repetitions,
        [=](Stopwatch& watch) { identifyBare(devices, watch); },
        [=](Stopwatch& watch) { identify(devices, watch); });
}

void registerTransfers()
{
    const auto doc = std::make_shared<TesselDoc>(nullptr);
    fillDocument(*doc, hall);
    QList<QList<QByteArray>> requests;
    for (int hub = 0; hub < hall.hubs; ++hub) {
        requests.append(transferRequests(*doc, benchAddress(hub)));
    }
    for (const int hubs : {1, 4}) {
        registerPair(
            QStringLiteral("transfer%1").arg(hubs), 40,
            [=](Stopwatch& watch) { transferBare(hubs, requests, watch); },
            [=](Stopwatch& watch) { transfer(hubs, *doc, watch); });
    }
}

} // namespace

int main(int argc, char** argv)
{
    const CannedPeer peer(addresses(mostDevices), addresses(hall.hubs));
    if (!peer.isOpen()) {
        qCritical("bench_sockets: port 80 or 49280 of 127.90.0.0/16 cannot be opened");
        return 1;
    }
    Stopwatch::countPeer(peer.processId());
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    registerTransfers();
    registerIdentity(250, 25);
    registerIdentity(mostDevices, 11);
    benchmark::RunSpecifiedBenchmarks();
    // What they hold, widgets and pictures, must not outlive the application.
    benchmark::ClearRegisteredBenchmarks();
    benchmark::Shutdown();
    return 0;
}
