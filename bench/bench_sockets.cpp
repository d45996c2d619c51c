// Identifying devices and installing presets, each beside the plainest code that has the same
// conversation with the same peer. Run it on one CPU (taskset -c 0): across two, waking the other
// end costs more than all that is measured.

#include "bareconversation.h"
#include "bareidentity.h"
#include "bareinstaller.h"
#include "benchdocument.h"
#include "benchpair.h"
#include "cannedpeer.h"
#include "countdown.h"
#include "deviceinforeceiver.h"
#include "installdesk.h"
#include "presetfilesender.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QApplication>
#include <QSignalSpy>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

constexpr int maxDevices = 1000;
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

void identifyBare(int devices, Stopwatch& watch)
{
    std::vector<std::unique_ptr<BareIdentity>> peers;
    Countdown countdown(devices);
    watch.start();
    for (const QString& address : addresses(devices)) {
        peers.push_back(std::make_unique<BareIdentity>(address));
        QObject::connect(peers.back().get(), SIGNAL(finished()), &countdown, SLOT(done()));
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

using Installers = std::vector<std::unique_ptr<BareInstaller>>;

// So many, connected and ready to begin.
Installers connectedInstallers(const HallRecords& records, int hubs)
{
    Installers installers;
    Countdown connections(hubs);
    for (int hub = 0; hub < hubs; ++hub) {
        installers.push_back(std::make_unique<BareInstaller>(benchAddress(hub), records));
        QObject::connect(installers.back().get(), SIGNAL(connected()), &connections, SLOT(done()));
        installers.back()->connectToHub();
    }
    connections.wait();
    return installers;
}

/// Returns how many bytes the hubs got.
qint64 transferBare(const HallRecords& records, int hubs, const CannedPeer& peer, Stopwatch& watch)
{
    const Installers installers = connectedInstallers(records, hubs);
    Countdown countdown(hubs);
    for (const auto& installer : installers) {
        QObject::connect(installer.get(), SIGNAL(finished()), &countdown, SLOT(done()));
    }
    const qint64 before = peer.bytesReceived();
    watch.start();
    for (const auto& installer : installers) {
        installer->begin();
    }
    countdown.wait();
    watch.stop();
    return peer.bytesReceived() - before;
}

// The requests of the first hub's transfer.
QList<QByteArray> transferRequests(const HallRecords& records)
{
    const Installers installers = connectedInstallers(records, 1);
    Countdown countdown(1);
    BareInstaller* const installer = installers.front().get();
    const QSignalSpy spy(installer, SIGNAL(sending(QByteArray)));
    QObject::connect(installer, SIGNAL(finished()), &countdown, SLOT(done()));
    installer->begin();
    countdown.wait();
    QList<QByteArray> requests;
    for (const QList<QVariant>& sent : spy) {
        requests.append(sent.first().toByteArray());
    }
    return requests;
}

void sendPrepared(const QList<QByteArray>& requests, Stopwatch& watch)
{
    BareConversation hub(benchAddress(0), webPort, requests);
    Countdown connection(1);
    Countdown countdown(1);
    QObject::connect(&hub, SIGNAL(connected()), &connection, SLOT(done()));
    QObject::connect(&hub, SIGNAL(finished()), &countdown, SLOT(done()));
    hub.connectToPeer();
    connection.wait();
    watch.start();
    hub.begin();
    countdown.wait();
    watch.stop();
}

/// Returns how many bytes the hubs got after the log-in.
qint64 transfer(IDocAccessor& doc, int hubs, const CannedPeer& peer, Stopwatch& watch)
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
    const qint64 before = peer.bytesReceived();
    watch.start();
    for (const auto& sender : senders) {
        sender->sendPresets();
    }
    countdown.wait();
    watch.stop();
    return peer.bytesReceived() - before;
}

void registerIdentity(int devices, int repetitions)
{
    registerPair(
        QStringLiteral("identify%1").arg(devices), repetitions,
        [=](Stopwatch& watch) { identifyBare(devices, watch); },
        [=](Stopwatch& watch) { identify(devices, watch); });
}

void registerTransfers(const CannedPeer& peer)
{
    const auto doc = std::make_shared<TesselDoc>(nullptr);
    fillDocument(*doc, hall);
    const auto records = std::make_shared<HallRecords>(hallRecords(hall));
    Stopwatch unused{QString()};
    if (transferBare(*records, 1, peer, unused) != transfer(*doc, 1, peer, unused)) {
        qFatal("The two sides send different requests.");
    }
    for (const int hubs : {1, 4}) {
        registerPair(
            QStringLiteral("transfer%1").arg(hubs), 40,
            [=, &peer](Stopwatch& watch) { transferBare(*records, hubs, peer, watch); },
            [=, &peer](Stopwatch& watch) { transfer(*doc, hubs, peer, watch); });
    }
    const QList<QByteArray> requests = transferRequests(*records);
    registerPair(
        QStringLiteral("sockets"), 40, [=](Stopwatch& watch) { sendPrepared(requests, watch); },
        [=, &peer](Stopwatch& watch) { transfer(*doc, 1, peer, watch); });
}

} // namespace

int main(int argc, char** argv)
{
    const CannedPeer peer(addresses(maxDevices), addresses(hall.hubs));
    if (!peer.isOpen()) {
        qCritical("bench_sockets: port 80 or 49280 of 127.90.0.0/16 cannot be opened");
        return 1;
    }
    Stopwatch::countPeer(peer.processId());
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    registerTransfers(peer);
    registerIdentity(250, 25);
    registerIdentity(maxDevices, 11);
    benchmark::RunSpecifiedBenchmarks();
    // What they hold, widgets and pictures, must not outlive the application.
    benchmark::ClearRegisteredBenchmarks();
    benchmark::Shutdown();
    return 0;
}
