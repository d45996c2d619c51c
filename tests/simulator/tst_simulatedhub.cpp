#include "hall.h"
#include "hubconnection.h"
#include "hubtexts.h"
#include "rawpeer.h"
#include "testcase.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

namespace {

const QString address = QStringLiteral("127.10.1.1");
const QByteArray host = "127.10.1.1";
const QString secondAddress = QStringLiteral("127.10.1.9");

HallDescription oneHub(const std::optional<QString>& password)
{
    HallDescription hall = *HallDescription::byCounts(1, 0, address);
    hall.hubs.front().password = password;
    hall.hubs.front().exportPolls = 1;
    return hall;
}

const QString secret = QStringLiteral("secret");

} // namespace

/// A hub over real sockets, asked with requests written out by hand.
class TestSimulatedHub : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wholeInstallationIsKeptAsItWasGiven();
    void requestsMayArriveByteByByteOrJoined();
    void textRecallOfAPresetThatTheHubHasNotIsRefused();
    void differencesAreReportedAndStillAnswered();
    void noSecretStandsInTheJournal();
    void secondAddressReachesTheSameHub();
    void malformedRequestIsRefusedAndTheConnectionEnds();
    void unfinishedRequestIsTold_data();
    void unfinishedRequestIsTold();
    void connectionBetweenRequestsEndsWithoutATrace();
    void endOfTheHubsOwnMakingIsNoDifference_data();
    void endOfTheHubsOwnMakingIsNoDifference();
    void statusFaultKeepsTheEntryOut();
    void faultsEndWhenTheyAreCleared();
    void refusedConnectionsAreTakenAgainAfterwards();
    void rebootDropsConnectionsAndTokens();
    void aPortThatIsTakenAfterARebootIsUsedOnceItIsFree();
    void silenceKeepsTheConnection();
    void closingBeforeTheReplyAndInTheBody();
    void onePieceForEveryByte();
    void slowReplyWaits();
    void exactCloseEndsTheConnectionOtherCaseDoesNot();
    void takenAddressIsToldInPlainWords();

private:
    QByteArray ask(RawPeer& peer, const QByteArray& request);
    QByteArray logIn(RawPeer& peer);
};

QByteArray TestSimulatedHub::ask(RawPeer& peer, const QByteArray& request)
{
    peer.send(request);
    return peer.takeReply();
}

QByteArray TestSimulatedHub::logIn(RawPeer& peer)
{
    const QByteArray guest = HubTexts::tokenIn(ask(peer, HubTexts::token(host)));
    return HubTexts::tokenIn(ask(peer, HubTexts::logIn(host, guest)));
}

#define START_HALL(password)                                                                       \
    Hall hall(oneHub(password));                                                                   \
    QString error;                                                                                 \
    QVERIFY2(hall.start(&error), qPrintable(error));                                               \
    SimulatedHub* hub = hall.hub(address);                                                         \
    RawPeer peer;                                                                                  \
    QVERIFY(peer.connectTo(address, SimulatedHub::httpPort))

void TestSimulatedHub::wholeInstallationIsKeptAsItWasGiven()
{
    START_HALL(std::nullopt);
    const QSignalSpy handled(&hall, SIGNAL(requestHandled(QString, QString)));

    QCOMPARE(HubTexts::bodyOf(ask(peer, HubTexts::status(host))),
             QByteArray("{\"is-initialized\":0}"));
    const QByteArray guest = HubTexts::tokenIn(ask(peer, HubTexts::token(host)));
    QVERIFY(!guest.isEmpty());
    QCOMPARE(HubTexts::bodyOf(ask(peer, HubTexts::setPassword(host, guest))),
             QByteArray("{\"request\":\"accepted\"}"));
    const QByteArray token = HubTexts::tokenIn(ask(peer, HubTexts::logIn(host, guest)));
    QVERIFY(!token.isEmpty());
    QCOMPARE(HubTexts::statusOf(ask(peer, HubTexts::startExport(host, token))), QByteArray("200"));
    QVERIFY(!ask(peer, HubTexts::readExport(host, token)).contains("Content-Disposition"));
    QVERIFY(ask(peer, HubTexts::readExport(host, token))
                .contains("\r\nContent-Disposition: attachment; filename=\"hub01.xml\"\r\n"));
    ask(peer, HubTexts::presetEntry(host, token, 1, "\xC3\x84 \\\"x\\\" \\\\ y"));
    ask(peer, HubTexts::file(host, token, 1, "hub01", HubTexts::hubXml()));
    ask(peer, HubTexts::file(host, token, 1, "021A00100001", HubTexts::deviceXml()));
    ask(peer, HubTexts::presetEntry(host, token, 2, ""));
    ask(peer, HubTexts::file(host, token, 2, "hub01", HubTexts::hubXml()));
    QCOMPARE(HubTexts::bodyOf(ask(peer, HubTexts::recall(host, token, 1))),
             QByteArray("{\"request\":\"accepted\"}"));
    QCOMPARE(HubTexts::bodyOf(ask(peer, HubTexts::invalidate(host, token))),
             QByteArray("{\"status\":\"invalid\"}"));

    QCOMPARE(hub->differences(), QStringList());
    QCOMPARE(hub->presets().keys(), (QList{1, 2}));
    QCOMPARE(hub->presets().value(1).description(), QString::fromUtf8("Ä \"x\" \\ y"));
    QCOMPARE(hub->presets().value(2).description(), QString());
    QCOMPARE(hub->presets().value(1).files.keys(),
             (QStringList{QStringLiteral("021A00100001"), QStringLiteral("hub01")}));
    QCOMPARE(hub->presets().value(1).files.value(QStringLiteral("hub01")), HubTexts::hubXml());
    QCOMPARE(hub->recalledPreset(), 1);
    QCOMPARE(hub->currentPreset(), 1);
    QCOMPARE(hub->logInCount(), 1);
    QCOMPARE(handled.size(), 14);
    QCOMPARE(hub->exchangeNames().join(u' '),
             QStringLiteral("status token set-password log-in start-export read-export read-export "
                            "preset-entry hub-file device-file preset-entry hub-file recall "
                            "invalidate"));
}

void TestSimulatedHub::requestsMayArriveByteByByteOrJoined()
{
    START_HALL(secret);
    for (const char byte : HubTexts::status(host)) {
        peer.send(QByteArray(1, byte));
        QCoreApplication::processEvents();
    }
    QCOMPARE(HubTexts::bodyOf(peer.takeReply()), QByteArray("{\"is-initialized\":1}"));

    peer.send(HubTexts::status(host) + HubTexts::token(host) + HubTexts::status(host));
    QTRY_COMPARE(hub->journal().size(), 4);
    QTRY_COMPARE(peer.received().count("HTTP/1.1 200 OK\r\n"), 3);
    QCOMPARE(hub->differences(), QStringList());
}

void TestSimulatedHub::textRecallOfAPresetThatTheHubHasNotIsRefused()
{
    START_HALL(secret);
    ask(peer, HubTexts::presetEntry(host, logIn(peer), 2, "A"));
    QVERIFY(hub->presets().contains(2));
    const QSignalSpy noticed(&hall, SIGNAL(noticed(QString, QString)));
    RawPeer commands;
    QVERIFY(commands.connectTo(address, SimulatedDevice::textPort));
    commands.send("ssrecall_ex config 3\n");
    QCOMPARE(commands.takeLine(), QByteArray("ERROR ssrecall_ex config 3\n"));
    QCOMPARE(hub->currentPreset(), 0);
    QCOMPARE(noticed.last().last().toString(), QStringLiteral("ssrecall_ex config 3: refused"));
    commands.send("ssrecall_ex config 2\n");
    QTRY_COMPARE(commands.received(), QByteArray("OK ssrecall_ex config 2\n"
                                                 "NOTIFY ssrecall_ex config 2\n"));
    QCOMPARE(hub->currentPreset(), 2);
    QCOMPARE(hub->differences(), QStringList());
}

void TestSimulatedHub::differencesAreReportedAndStillAnswered()
{
    START_HALL(secret);
    const QSignalSpy found(&hall, SIGNAL(differenceFound(QString, QString)));
    ask(peer, HubTexts::status(host));
    const QByteArray reply = ask(peer, "GET http://127.10.1.1/api/v0/auth/token HTTP/1.1\r\n"
                                       "connection: keep-alive\r\n\r\n");
    QCOMPARE(HubTexts::statusOf(reply), QByteArray("200"));
    QCOMPARE(hub->differences(),
             QStringList{QStringLiteral("request 2 (token): header line 2: expected "
                                        "\"Connection: keep-alive\", got "
                                        "\"connection: keep-alive\"")});
    QCOMPARE(found.size(), 1);
    QCOMPARE(hall.differences(),
             QStringList{address + QStringLiteral(": ") + hub->differences().front()});
}

void TestSimulatedHub::noSecretStandsInTheJournal()
{
    START_HALL(secret);
    QStringList told;
    connect(&hall, &Hall::noticed, &hall,
            [&told](const QString&, const QString& text) { told.append(text); });
    const QByteArray guest = HubTexts::tokenIn(ask(peer, HubTexts::token(host)));
    QByteArray request = HubTexts::withBody("POST", host, "auth/authenticate", guest,
                                            QByteArray(R"({"user-id":"admin","password":")") +
                                                HubTexts::secretHash + "\"}");
    request.replace("Accept", "accept").replace("authorization", "Authorization");
    const QByteArray token = HubTexts::tokenIn(ask(peer, request));
    QVERIFY(!token.isEmpty());
    request = HubTexts::withBody("POST", host, "auth/validate", token, "{\"admin\": \"secret\"}");
    ask(peer, request);

    const QString all = hub->differences().join(u'\n') + told.join(u'\n');
    QVERIFY(hub->differences().size() >= 3);
    QVERIFY(!all.contains(QLatin1String(guest)));
    QVERIFY(!all.contains(QLatin1String(token)));
    QVERIFY(!all.contains(QLatin1String(HubTexts::secretHash)));
    QVERIFY(!all.contains(secret + u'"'));
}

void TestSimulatedHub::secondAddressReachesTheSameHub()
{
    HallDescription description = oneHub(secret);
    description.hubs.front().secondAddress = secondAddress;
    Hall hall(description);
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    QCOMPARE(hall.hub(secondAddress), hall.hub(address));
    RawPeer peer;
    QVERIFY(peer.connectTo(secondAddress, SimulatedHub::httpPort));
    QVERIFY(!ask(peer, HubTexts::status("127.10.1.9")).isEmpty());
    QCOMPARE(hall.differences(), QStringList());
    ask(peer, HubTexts::status(host));
    QCOMPARE(hall.differences().size(), 1);
}

void TestSimulatedHub::malformedRequestIsRefusedAndTheConnectionEnds()
{
    START_HALL(secret);
    QCOMPARE(HubTexts::statusOf(ask(peer, "garbage\r\n\r\n")), QByteArray("400"));
    QTRY_VERIFY(!peer.isConnected());
    QCOMPARE(hub->differences().size(), 1);
}

void TestSimulatedHub::unfinishedRequestIsTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("difference");
    const QByteArray recall = HubTexts::recall(host, "t", 1);
    const auto row = [](const char* name, const QByteArray& bytes, const QString& difference) {
        QTest::newRow(name) << bytes
                            << difference.arg(QStringLiteral("connection ended inside a request: "
                                                             "%1 bytes of an unfinished request")
                                                  .arg(bytes.size()));
    };
    row("a body shorter than announced", recall.chopped(1),
        QStringLiteral("request 1 (recall): %1"));
    row("a header without an end", recall.first(40),
        QStringLiteral("request 1 (unknown-request): %1"));
    row("one byte", "P", QStringLiteral("request 1 (unknown-request): %1"));
}

void TestSimulatedHub::unfinishedRequestIsTold()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, difference);
    START_HALL(secret);
    peer.send(bytes);
    peer.close();
    QTRY_COMPARE(hub->differences(), QStringList{difference});
}

void TestSimulatedHub::connectionBetweenRequestsEndsWithoutATrace()
{
    START_HALL(secret);
    hub->setFault({.kind = FaultKind::Slow, .number = 50, .skip = 1});
    ask(peer, HubTexts::status(host));
    // The last of them is still unread when the peer leaves.
    peer.send(HubTexts::status(host) + HubTexts::token(host));
    peer.close();
    QTRY_COMPARE(hub->journal().size(), 2);
    QTRY_VERIFY(hub->findChildren<HubConnection*>().isEmpty());
    QCOMPARE(hub->differences(), QStringList());
}

void TestSimulatedHub::endOfTheHubsOwnMakingIsNoDifference_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::newRow("close") << Fault{.kind = FaultKind::CloseBeforeReply};
    QTest::newRow("close in the body") << Fault{.kind = FaultKind::CloseInBody};
    QTest::newRow("Connection: close")
        << Fault{.kind = FaultKind::ConnectionHeader, .bytes = "close"};
    QTest::newRow("reboot") << Fault{.kind = FaultKind::Reboot, .number = 10};
}

void TestSimulatedHub::endOfTheHubsOwnMakingIsNoDifference()
{
    QFETCH(const Fault, fault);
    START_HALL(secret);
    hub->setFault(fault);
    RawPeer other;
    QVERIFY(other.connectTo(address, SimulatedHub::httpPort));
    other.send("GET ");
    peer.send(HubTexts::status(host) + "GET ");
    QTRY_VERIFY(!peer.isConnected());
    hall.stop();
    QTRY_VERIFY(!other.isConnected());
    QTRY_VERIFY(hub->findChildren<HubConnection*>().isEmpty());
    QCOMPARE(hub->differences(), QStringList());
}

void TestSimulatedHub::statusFaultKeepsTheEntryOut()
{
    START_HALL(secret);
    hub->setFault(
        {.exchange = Exchange::PresetEntry, .kind = FaultKind::Status, .number = 503, .times = 1});
    const QByteArray token = logIn(peer);
    QCOMPARE(HubTexts::statusOf(ask(peer, HubTexts::presetEntry(host, token, 1, "a"))),
             QByteArray("503"));
    QVERIFY(hub->presets().isEmpty());
    QCOMPARE(HubTexts::statusOf(ask(peer, HubTexts::presetEntry(host, token, 1, "a"))),
             QByteArray("200"));
    QCOMPARE(hub->presets().size(), 1);
}

void TestSimulatedHub::faultsEndWhenTheyAreCleared()
{
    START_HALL(secret);
    QVERIFY(hall.setFault({.address = address, .kind = FaultKind::Status, .number = 500}));
    QVERIFY(!hall.setFault({.address = secondAddress, .kind = FaultKind::Status, .number = 500}));
    QCOMPARE(HubTexts::statusOf(ask(peer, HubTexts::status(host))), QByteArray("500"));
    QCOMPARE(HubTexts::statusOf(ask(peer, HubTexts::token(host))), QByteArray("500"));
    hall.clearFaults();
    QCOMPARE(HubTexts::statusOf(ask(peer, HubTexts::status(host))), QByteArray("200"));
    QCOMPARE(hub->journal().size(), 3);
}

void TestSimulatedHub::refusedConnectionsAreTakenAgainAfterwards()
{
    START_HALL(secret);
    hub->setFault({.kind = FaultKind::RefuseHttp});
    RawPeer late;
    QVERIFY(!late.connectTo(address, SimulatedHub::httpPort));
    hub->clearFaults();
    QVERIFY(late.connectTo(address, SimulatedHub::httpPort));
}

void TestSimulatedHub::rebootDropsConnectionsAndTokens()
{
    START_HALL(secret);
    const QByteArray token = logIn(peer);
    ask(peer, HubTexts::presetEntry(host, token, 1, "a"));
    hub->setFault(
        {.exchange = Exchange::StartExport, .kind = FaultKind::Reboot, .number = 50, .times = 1});
    peer.send(HubTexts::startExport(host, token));
    QTRY_VERIFY(!peer.isConnected());
    QVERIFY(!peer.connectTo(address, SimulatedHub::httpPort));
    QTRY_VERIFY(peer.connectTo(address, SimulatedHub::httpPort));
    QCOMPARE(HubTexts::statusOf(ask(peer, HubTexts::startExport(host, token))), QByteArray("401"));
    QCOMPARE(hub->presets().size(), 1);
}

void TestSimulatedHub::aPortThatIsTakenAfterARebootIsUsedOnceItIsFree()
{
    START_HALL(secret);
    const QSignalSpy noticed(&hall, SIGNAL(noticed(QString, QString)));
    const QByteArray token = logIn(peer);
    hub->setFault(
        {.exchange = Exchange::StartExport, .kind = FaultKind::Reboot, .number = 50, .times = 1});
    peer.send(HubTexts::startExport(host, token));
    QTRY_VERIFY(!peer.isConnected());
    QTcpServer occupant;
    QVERIFY(occupant.listen(QHostAddress(address), SimulatedHub::httpPort));
    QTRY_VERIFY(noticed.last().last().toString().startsWith(u"cannot listen on 127.10.1.1"));
    occupant.close();
    QTRY_VERIFY(peer.connectTo(address, SimulatedHub::httpPort));
}

void TestSimulatedHub::silenceKeepsTheConnection()
{
    START_HALL(secret);
    hub->setFault({.exchange = Exchange::Status, .kind = FaultKind::Silence});
    peer.send(HubTexts::status(host));
    QTRY_COMPARE(hub->journal().size(), 1);
    // The next reply is the only one: nothing came for the first request.
    QVERIFY(!HubTexts::tokenIn(ask(peer, HubTexts::token(host))).isEmpty());
    QVERIFY(peer.isConnected());
}

void TestSimulatedHub::closingBeforeTheReplyAndInTheBody()
{
    START_HALL(secret);
    hub->setFault({.kind = FaultKind::CloseBeforeReply, .times = 1});
    hub->setFault({.kind = FaultKind::CloseInBody, .times = 1, .skip = 1});
    peer.send(HubTexts::status(host));
    QTRY_VERIFY(!peer.isConnected());
    QCOMPARE(peer.received(), QByteArray());

    QVERIFY(peer.connectTo(address, SimulatedHub::httpPort));
    peer.send(HubTexts::status(host));
    QTRY_VERIFY(!peer.isConnected());
    QCOMPARE(HubTexts::bodyOf(peer.received()), QByteArray("{\"is-initi"));
}

void TestSimulatedHub::onePieceForEveryByte()
{
    START_HALL(secret);
    hub->setFault({.kind = FaultKind::Pieces, .times = 1});
    peer.send(HubTexts::status(host));
    QTRY_VERIFY(peer.received().endsWith("{\"is-initialized\":1}"));
    QVERIFY(peer.packets().size() > 100);
}

void TestSimulatedHub::slowReplyWaits()
{
    START_HALL(secret);
    hub->setFault({.kind = FaultKind::Slow, .number = 80, .times = 1});
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!ask(peer, HubTexts::status(host)).isEmpty());
    QVERIFY(timer.elapsed() >= 80);
}

void TestSimulatedHub::exactCloseEndsTheConnectionOtherCaseDoesNot()
{
    START_HALL(secret);
    hub->setFault({.kind = FaultKind::ConnectionHeader, .bytes = "Close", .times = 1});
    hub->setFault(
        {.kind = FaultKind::ConnectionHeader, .bytes = "  close ", .times = 1, .skip = 1});
    QVERIFY(ask(peer, HubTexts::status(host)).contains("\r\nConnection: Close\r\n"));
    QVERIFY(ask(peer, HubTexts::status(host)).contains("\r\nConnection:   close \r\n"));
    QTRY_VERIFY(!peer.isConnected());
}

void TestSimulatedHub::takenAddressIsToldInPlainWords()
{
    START_HALL(secret);
    QCOMPARE(hub->address(), address);
    Hall rival(oneHub(secret));
    QVERIFY(!rival.start(&error));
    QVERIFY2(error.startsWith(QLatin1String("cannot listen on 127.10.1.1 port ")),
             qPrintable(error));
    hall.stop();
    QVERIFY2(rival.start(&error), qPrintable(error));
}

TESSEL_TEST_MAIN(TestSimulatedHub)
#include "tst_simulatedhub.moc"
