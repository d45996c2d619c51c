#include "hall.h"
#include "rawpeer.h"
#include "testcase.h"
#include "textconnection.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QString address = QStringLiteral("127.10.3.1");

HallDescription oneSpeaker()
{
    HallDescription hall = *HallDescription::byCounts(0, 1, address);
    DeviceDescription& device = hall.peripherals.front();
    device.label = QString::fromUtf8("Bühne");
    device.deviceId = QStringLiteral("7");
    device.version = QStringLiteral("2.1.0");
    device.serial = QStringLiteral("PD7");
    return hall;
}

} // namespace

/// The text-command port of a device over real sockets.
class TestSimulatedDevice : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandHasItsAnswer_data();
    void everyCommandHasItsAnswer();
    void oneAnswerForEachLineHoweverTheyArrive();
    void unfinishedLineIsTold_data();
    void unfinishedLineIsTold();
    void connectionDroppedInsideALineIsNoDifference();
    void recallIsToldAMomentLater();
    void identifyIsCounted();
    void greetingOnItsOwn();
    void greetingWithTheFirstAnswer();
    void errorAnswerChangesNothing();
    void noAnswerComesAndNothingIsDone();
    void readBackIsNeverAnsweredButTheRestIs();
    void recallWithoutEffectIsConfirmedAllTheSame();
    void answersStopAfterSome();
    void refusedConnections();

private:
    static QByteArray ask(RawPeer& peer, const QByteArray& line)
    {
        peer.send(line);
        return peer.takeLine();
    }
};

#define START_DEVICE                                                                               \
    Hall hall(oneSpeaker());                                                                       \
    QString error;                                                                                 \
    QVERIFY2(hall.start(&error), qPrintable(error));                                               \
    SimulatedDevice* device = hall.device(address);                                                \
    RawPeer peer

#define CONNECT_PEER QVERIFY(peer.connectTo(address, SimulatedDevice::textPort))

void TestSimulatedDevice::everyCommandHasItsAnswer_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<qsizetype>("differences");
    const auto row = [](const char* line, const char* answer, qsizetype differences = 0) {
        QTest::newRow(line) << QByteArray(line) + '\n' << QByteArray(answer) << differences;
    };
    row("devinfo deviceid", "OK devinfo deviceid \"7\"\n");
    row("devinfo devicename", "OK devinfo devicename \"B\xC3\xBChne\"\n");
    row("devinfo version", "OK devinfo version \"2.1.0\"\n");
    row("devinfo serialno", "OK devinfo serialno \"PD7\"\n");
    row("sscurrent_ex config", "OK sscurrent_ex config 0\n");
    row("identify 5", "OK identify 5\n");
    row("devinfo", "ERROR devinfo\n", 1);
    row("devinfo version ", "ERROR devinfo version \n", 1);
    row("DEVINFO version", "ERROR DEVINFO version\n", 1);
    row("devinfo version\r", "ERROR devinfo version\r\n", 1);
    row("identify", "ERROR identify\n", 1);
    row("identify 05", "ERROR identify 05\n", 1);
    row("identify x", "ERROR identify x\n", 1);
    row("ssrecall_ex config", "ERROR ssrecall_ex config\n", 1);
    row("", "ERROR \n", 1);
}

void TestSimulatedDevice::everyCommandHasItsAnswer()
{
    QFETCH(const QByteArray, line);
    START_DEVICE;
    CONNECT_PEER;
    QTEST(ask(peer, line), "answer");
    QTEST(device->differences().size(), "differences");
    QCOMPARE(device->journal().size(), 1);
}

void TestSimulatedDevice::oneAnswerForEachLineHoweverTheyArrive()
{
    START_DEVICE;
    CONNECT_PEER;
    peer.send("devinfo dev");
    QCoreApplication::processEvents();
    peer.send("iceid\ndevinfo version\ndevinfo ser");
    QTRY_COMPARE(peer.received(), QByteArray("OK devinfo deviceid \"7\"\n"
                                             "OK devinfo version \"2.1.0\"\n"));
    peer.send("ialno\n");
    QTRY_VERIFY(peer.received().endsWith("OK devinfo serialno \"PD7\"\n"));
    QCOMPARE(device->exchangeNames().join(u' '), QStringLiteral("device-id version serial-number"));
}

void TestSimulatedDevice::unfinishedLineIsTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("difference");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("one byte")
        << QByteArray("d")
        << QStringLiteral("connection ended inside a line: 1 bytes of an unfinished line");
    QTest::newRow("more than any line has")
        << QByteArray(70000, 'x') << QStringLiteral("line longer than 65536 bytes");
}

void TestSimulatedDevice::unfinishedLineIsTold()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, difference);
    START_DEVICE;
    CONNECT_PEER;
    ask(peer, "devinfo deviceid\n");
    peer.send(bytes);
    peer.close();
    QTRY_VERIFY(device->findChildren<TextConnection*>().isEmpty());
    QCOMPARE(device->differences(),
             difference.isEmpty()
                 ? QStringList()
                 : QStringList{QStringLiteral("request 2 (unknown-command): ") + difference});
}

void TestSimulatedDevice::connectionDroppedInsideALineIsNoDifference()
{
    START_DEVICE;
    CONNECT_PEER;
    peer.send("devinfo deviceid\ndevinfo");
    QCOMPARE(peer.takeLine(), QByteArray("OK devinfo deviceid \"7\"\n"));
    hall.stop();
    QTRY_VERIFY(!peer.isConnected());
    QCOMPARE(device->differences(), QStringList());
}

void TestSimulatedDevice::recallIsToldAMomentLater()
{
    START_DEVICE;
    CONNECT_PEER;
    peer.send("ssrecall_ex config 4\n");
    QTRY_COMPARE(peer.packets(),
                 (QList<QByteArray>{"OK ssrecall_ex config 4\n", "NOTIFY ssrecall_ex config 4\n"}));
    QCOMPARE(device->currentPreset(), 4);
    peer.takeLine();
    QCOMPARE(ask(peer, "sscurrent_ex config\n"), QByteArray("OK sscurrent_ex config 4\n"));
}

void TestSimulatedDevice::identifyIsCounted()
{
    START_DEVICE;
    CONNECT_PEER;
    const QSignalSpy handled(&hall, SIGNAL(commandHandled(QString, QString)));
    ask(peer, "identify 5\n");
    ask(peer, "identify 5\n");
    QCOMPARE(device->identifyCount(), 2);
    QCOMPARE(handled.size(), 2);
    QCOMPARE(handled.last(), (QVariantList{address, QStringLiteral("identify 5")}));
}

void TestSimulatedDevice::greetingOnItsOwn()
{
    START_DEVICE;
    device->setFault({.kind = FaultKind::Greeting, .bytes = "hello\n"});
    CONNECT_PEER;
    QCOMPARE(peer.takeLine(), QByteArray("hello\n"));
    QCOMPARE(ask(peer, "devinfo deviceid\n"), QByteArray("OK devinfo deviceid \"7\"\n"));
}

void TestSimulatedDevice::greetingWithTheFirstAnswer()
{
    START_DEVICE;
    device->setFault({.kind = FaultKind::GreetingWithAnswer, .bytes = "hello\n"});
    CONNECT_PEER;
    QCOMPARE(ask(peer, "devinfo deviceid\n"), QByteArray("hello\nOK devinfo deviceid \"7\"\n"));
    QCOMPARE(ask(peer, "devinfo deviceid\n"), QByteArray("OK devinfo deviceid \"7\"\n"));
}

void TestSimulatedDevice::errorAnswerChangesNothing()
{
    START_DEVICE;
    device->setFault({.exchange = Exchange::RecallCommand, .kind = FaultKind::ErrorAnswer});
    CONNECT_PEER;
    QCOMPARE(ask(peer, "ssrecall_ex config 4\n"), QByteArray("ERROR ssrecall_ex config 4\n"));
    QCOMPARE(device->currentPreset(), 0);
    QCOMPARE(device->differences(), QStringList());
}

void TestSimulatedDevice::noAnswerComesAndNothingIsDone()
{
    START_DEVICE;
    device->setFault({.exchange = Exchange::RecallCommand, .kind = FaultKind::NoAnswer});
    CONNECT_PEER;
    peer.send("ssrecall_ex config 4\n");
    QCOMPARE(ask(peer, "sscurrent_ex config\n"), QByteArray("OK sscurrent_ex config 0\n"));
    QCOMPARE(device->exchangeNames().join(u' '), QStringLiteral("recall-command current-preset"));
}

void TestSimulatedDevice::readBackIsNeverAnsweredButTheRestIs()
{
    START_DEVICE;
    device->setFault({.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer});
    CONNECT_PEER;
    peer.send("sscurrent_ex config\n");
    QCOMPARE(ask(peer, "devinfo deviceid\n"), QByteArray("OK devinfo deviceid \"7\"\n"));
    peer.send("sscurrent_ex config\n");
    QCOMPARE(ask(peer, "identify 5\n"), QByteArray("OK identify 5\n"));
    QVERIFY(peer.isConnected());
}

void TestSimulatedDevice::recallWithoutEffectIsConfirmedAllTheSame()
{
    START_DEVICE;
    device->setFault({.exchange = Exchange::RecallCommand, .kind = FaultKind::NoEffect});
    CONNECT_PEER;
    peer.send("ssrecall_ex config 4\n");
    QTRY_COMPARE(peer.packets(),
                 (QList<QByteArray>{"OK ssrecall_ex config 4\n", "NOTIFY ssrecall_ex config 4\n"}));
    QCOMPARE(device->currentPreset(), 0);
}

void TestSimulatedDevice::answersStopAfterSome()
{
    START_DEVICE;
    device->setFault({.kind = FaultKind::StopAfter, .number = 2, .times = 1});
    CONNECT_PEER;
    peer.send("identify 1\nidentify 2\nidentify 3\n");
    QTRY_COMPARE(peer.received(), QByteArray("OK identify 1\nOK identify 2\n"));
    RawPeer next;
    QVERIFY(next.connectTo(address, SimulatedDevice::textPort));
    QCOMPARE(ask(next, "identify 4\n"), QByteArray("OK identify 4\n"));
    QCOMPARE(peer.received(), QByteArray("OK identify 1\nOK identify 2\n"));
    QCOMPARE(device->identifyCount(), 3);
}

void TestSimulatedDevice::refusedConnections()
{
    HallDescription description = oneSpeaker();
    description.faults = {{.address = address, .kind = FaultKind::RefuseText}};
    Hall hall(description);
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    RawPeer peer;
    QVERIFY(!peer.connectTo(address, SimulatedDevice::textPort));
    hall.clearFaults();
    CONNECT_PEER;
}

TESSEL_TEST_MAIN(TestSimulatedDevice)
#include "tst_simulateddevice.moc"
