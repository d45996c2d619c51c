#include "soakwizard.h"

#include "devicequeries.h"
#include "pagefixtures.h"
#include "sessionqueries.h"
#include "windowevents.h"

#include <QApplication>
#include <QNetworkInterface>
#include <QTest>
#include <QTreeWidget>

namespace {

constexpr quint16 discoveryPort = 54330;
constexpr int hubs = 2;
constexpr int peripherals = 6;
constexpr int configurePage = 4;
constexpr int longestWaitMs = 20'000;

int loopbackIndex()
{
    for (const QNetworkInterface& nic : QNetworkInterface::allInterfaces()) {
        if (nic.flags().testFlag(QNetworkInterface::IsLoopBack)) {
            return nic.index();
        }
    }
    return 0;
}

HallDescription describe(const QString& base)
{
    HallDescription description = HallDescription::byCounts(hubs, peripherals, base).value();
    // With both addresses known a hub is announced at once.
    description.addSecondAddresses(hubs);
    for (HubDescription& hub : description.hubs) {
        hub.password = QStringLiteral("secret7");
        hub.exportPolls = 0; // nobody waits for the second between two polls
    }
    return description;
}

} // namespace

SoakHall::SoakHall(const QString& base)
    : hall(describe(base))
{
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    for (SimulatedDevice* device : hall.devices()) {
        for (const NetworkPort& port : device->networkPorts()) {
            m_ports.push_back({device, port, std::make_unique<QUdpSocket>()});
            QVERIFY(m_ports.back().socket->bind(QHostAddress(port.address), discoveryPort));
        }
    }
}

void SoakHall::answerDiscovery()
{
    for (Port& port : m_ports) {
        for (const QByteArray& reply : port.device->discoveryReplies(port.port, QueryWay::ToAll)) {
            port.socket->writeDatagram(reply, QHostAddress(QHostAddress::LocalHost), discoveryPort);
        }
    }
}

void SoakHall::forget() const
{
    for (SimulatedDevice* device : hall.devices()) {
        device->clearJournal();
    }
}

SoakWizard::SoakWizard()
{
    // An interface handed over, so that the window does not ask for one.
    setNicIndex(doc, loopbackIndex());
    window = std::make_unique<MainWindow>(nullptr, &doc);
    window->show();
}

void SoakWizard::discover(SoakHall& hall)
{
    StartDiscoveryEvent start;
    QCoreApplication::sendEvent(window.get(), &start);
    hall.answerDiscovery();
    // Here a datagram has arrived when it has been sent.
    QCoreApplication::processEvents();
    QTRY_COMPARE_WITH_TIMEOUT(deviceCount(doc), int(hall.hall.devices().size()), longestWaitMs);
}

void SoakWizard::configure(const SoakHall& hall)
{
    drawRooms(doc, hubs);
    int room = 0;
    for (const SimulatedDevice* device : hall.hall.devices()) {
        const QString address = device->address();
        QVERIFY2(setDeviceRoom(doc, address, 1 + room % hubs), qPrintable(address));
        ++room;
    }
    addTestLayout(doc, 1, QStringLiteral("1/2"));
    addTestLayout(doc, 2, QStringLiteral("1+2"));
    while (pageIndex() < configurePage) {
        next();
    }
    removeSecondHub();
    next(); // stores it
    while (pageIndex() > 0) {
        back();
    }
}

/// A combined room has one hub; the last room group is that of both rooms.
void SoakWizard::removeSecondHub()
{
    hands().showGroup(hands().table("roomGroupList")->topLevelItemCount());
    hands().toggle(hands().table("hubTable")->topLevelItem(1));
}

void SoakWizard::next()
{
    const int before = pageIndex();
    QVERIFY(hands().next());
    QCOMPARE(pageIndex(), before + 1);
}

void SoakWizard::back()
{
    if (pageIndex() == 1) {
        window->back(); // the first working page has no button for it
    } else {
        QVERIFY(hands().back());
    }
}

int SoakWizard::pageIndex() const
{
    return hands().pageNumber() - 1;
}

void SoakWizard::install()
{
    QVERIFY(hands().press("executeButton"));
    QTRY_COMPARE_WITH_TIMEOUT(hands().statuses(), QStringLiteral("Done Done"), longestWaitMs);
}

WizardHands SoakWizard::hands() const
{
    return WizardHands(window.get());
}
