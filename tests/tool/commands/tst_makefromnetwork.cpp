#include "cabletest.h"
#include "hallfile.h"

#include <QFile>
#include <QTest>

namespace {

const QString hub = QStringLiteral("10.54.1.1");
const QString microphone = QStringLiteral("10.54.1.2");
const QString hubMac = QStringLiteral("02:00:00:00:00:01");
const QString microphoneMac = QStringLiteral("02:00:00:00:00:02");

/// What a planner writes down before anyone has seen the devices.
const QByteArray plannedHall = R"({
  "rooms": ["11112222", "11112222", "11112222", "11112222",
            "........", "........", "........", "........"],
  "devices": [
    {"address": "10.54.1.1", "model": "PX-HB", "room": 1},
    {"address": "10.54.1.2", "model": "PX-DL8", "room": 1}],
  "layouts": [{"rooms": "1/2"}]})";

/// The devices on site.
QByteArray builtHall(const QByteArray& faults = {}, const QByteArray& hubVersion = "2.1.0")
{
    return R"({"base": "10.54.1.1", "discovery": true, "discovery-listen": "10.54.255.255",
               "hubs": [{"label": "Stage", "mac": "02:00:00:00:00:01", "version": ")" +
           hubVersion + R"("}], "peripherals": [{"model": "PX-DL8", "version": "2.1.0",
                                             "address": "10.54.1.2",
                                             "mac": "02:00:00:00:00:02"}],
               "faults": [)" +
           faults + "]}";
}

} // namespace

/// `make --interface`, across a cable with the devices at its other end.
class TestMakeFromNetwork : public CableTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatTheListLacksComesFromTheNetwork();
    void whatOnlyAnswersAloneIsAskedAlone();
    void whatDoesNotAnswerStillLacksIt();
    void whatLacksNothingAndDoesNotAnswerIsNamed();
    void labelsThatTheListLacksComeFromTheNetwork();
    void deviceInAnotherNetworkIsNamed();
    void whatTheListSaysIsHeldAgainstTheNetwork_data();
    void whatTheListSaysIsHeldAgainstTheNetwork();
    void withoutTheInterfaceNobodyIsAsked();
    void whatCannotBeAskedIsTold();
    void whatSpeaksAgainstItIsWrittenWhenForced();

private:
    NetworkRun make(const QByteArray& hall,
                    const QString& options = QStringLiteral("--interface wizard")) const;
    void plan(const QByteArray& text) const { put("hall.json", text); }
    bool isWritten() const { return QFile::exists(path("hall.tessel")); }
};

void TestMakeFromNetwork::init()
{
    TestCase::init();
    QFile::remove(path("hall.tessel"));
    plan(plannedHall);
}

NetworkRun TestMakeFromNetwork::make(const QByteArray& hall, const QString& options) const
{
    return runTool(hall, QStringLiteral("make hall.json -o hall.tessel ") + options);
}

void TestMakeFromNetwork::whatTheListLacksComesFromTheNetwork()
{
    const NetworkRun run = make(builtHall());
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = readHallFile(path("hall.tessel"));
    QVERIFY2(reading.hall != nullptr, qPrintable(reading.fault));
    QCOMPARE(reading.hall->data().devices.find(hub)->macAddress, hubMac);
    QCOMPARE(reading.hall->data().devices.find(microphone)->macAddress, microphoneMac);
}

void TestMakeFromNetwork::whatOnlyAnswersAloneIsAskedAlone()
{
    const NetworkRun run =
        make(builtHall(R"({"device": "10.54.1.2", "at": "discovery", "kind": "direct-only"})"));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = readHallFile(path("hall.tessel"));
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(reading.hall->data().devices.find(microphone)->macAddress, microphoneMac);
}

void TestMakeFromNetwork::whatDoesNotAnswerStillLacksIt()
{
    const NetworkRun run =
        make(builtHall(R"({"device": "10.54.1.2", "at": "discovery", "kind": "no-reply"})"));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"tesselctl: hall.json: device 10.54.1.2: it did not answer, and "
                                 u"its MAC address is missing\n"),
             qPrintable(run.errors));
    QVERIFY(!run.errors.contains(u"device 10.54.1.1"));
    QVERIFY(!isWritten());
}

void TestMakeFromNetwork::whatLacksNothingAndDoesNotAnswerIsNamed()
{
    QByteArray text = plannedHall;
    plan(text.replace("\"PX-DL8\"", R"("PX-DL8", "mac": "02:00:00:00:00:02")"));
    const NetworkRun run =
        make(builtHall(R"({"device": "10.54.1.2", "at": "discovery", "kind": "no-reply"})"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u"tesselctl: hall.json: device 10.54.1.2: it did not answer\n"),
             qPrintable(run.errors));
    QVERIFY(isWritten());
}

void TestMakeFromNetwork::labelsThatTheListLacksComeFromTheNetwork()
{
    QByteArray text = plannedHall;
    plan(text.replace("\"PX-DL8\"", R"("PX-DL8", "label": "Ceiling")"));
    const NetworkRun run = make(builtHall());
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = readHallFile(path("hall.tessel"));
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(reading.hall->data().devices.find(hub)->label, QStringLiteral("Stage"));
    QVERIFY(!reading.hall->data().devices.find(hub)->labelModified);
    QCOMPARE(reading.hall->data().devices.find(microphone)->label, QStringLiteral("Ceiling"));
}

void TestMakeFromNetwork::deviceInAnotherNetworkIsNamed()
{
    QByteArray text = plannedHall;
    plan(text.replace("10.54.1.2", "10.55.1.2"));
    const NetworkRun run = make(builtHall());
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"device 10.55.1.2: it did not answer, and its MAC address is "
                                 "missing; 10.55.1.2 is not in the network of wizard "
                                 "(10.54.0.1/16)\n"),
             qPrintable(run.errors));
}

void TestMakeFromNetwork::whatTheListSaysIsHeldAgainstTheNetwork_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QByteArray>("hubVersion");
    QTest::addColumn<QString>("fault");
    QTest::newRow("another model")
        << QByteArray("\"PX-DL8\"") << QByteArray("\"PX-DL5\"") << QByteArray("2.1.0")
        << QStringLiteral("device 10.54.1.2: it tells that it is a PX-DL8, not a PX-DL5");
    QTest::newRow("another MAC address")
        << QByteArray("\"PX-HB\"") << QByteArray(R"("PX-HB", "mac": "02:00:00:00:00:07")")
        << QByteArray("2.1.0")
        << QStringLiteral("device 10.54.1.1: it tells the MAC address 02:00:00:00:00:01, not "
                          "02:00:00:00:00:07");
    QTest::newRow("old firmware") << QByteArray("\"PX-HB\"") << QByteArray("\"PX-HB\"")
                                  << QByteArray("1.0")
                                  << QStringLiteral(
                                         "device 10.54.1.1: firmware too old: has 1.0, needs 2");
}

void TestMakeFromNetwork::whatTheListSaysIsHeldAgainstTheNetwork()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    QFETCH(const QByteArray, hubVersion);
    QFETCH(const QString, fault);
    QByteArray text = plannedHall;
    plan(text.replace(before, after));
    const NetworkRun run = make(builtHall({}, hubVersion));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: hall.json: %1\n").arg(fault)),
             qPrintable(run.errors));
    QCOMPARE(run.errors.count(fault.section(u':', 0, 0)), 1);
    QVERIFY(!isWritten());
}

void TestMakeFromNetwork::withoutTheInterfaceNobodyIsAsked()
{
    const NetworkRun run = make(builtHall(), {});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.errors.count(QStringLiteral("its MAC address is missing")), 2);
}

void TestMakeFromNetwork::whatCannotBeAskedIsTold()
{
    const NetworkRun run = make(builtHall(), QStringLiteral("--interface eth9"));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"tesselctl: there is no wired interface \"eth9\"; there are: "
                                 "wizard\n"),
             qPrintable(run.errors));
    QVERIFY(!isWritten());
}

void TestMakeFromNetwork::whatSpeaksAgainstItIsWrittenWhenForced()
{
    QByteArray text = plannedHall;
    plan(text.replace("\"PX-DL8\"", "\"PX-DL5\""));
    const NetworkRun run = make(builtHall(), QStringLiteral("--interface wizard --force"));
    QCOMPARE(run.exitCode, 1);
    const HallReading reading = readHallFile(path("hall.tessel"));
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(reading.hall->data().devices.find(hub)->macAddress, hubMac);
    QCOMPARE(reading.hall->data().devices.find(microphone)->macAddress, QString());
}

TESSEL_TEST_MAIN(TestMakeFromNetwork)
#include "tst_makefromnetwork.moc"
