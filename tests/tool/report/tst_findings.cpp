#include "commandrun.h"
#include "devicefindings.h"
#include "hallhubs.h"
#include "halljson.h"
#include "testcase.h"
#include "walkfindings.h"

#include <QTest>

namespace {

FoundDevice found(const char* address, const char* mac, const char* serial = "S")
{
    return {QString::fromLatin1(address),
            QString::fromLatin1(mac),
            QStringLiteral("2.1.0"),
            QString::fromLatin1(serial),
            {}};
}

/// A search in which every device of a hall answered as it should.
QList<FoundDevice> rightSearch(const DocumentData& hall)
{
    QList<FoundDevice> devices;
    for (const DeviceData& device : hall.devices.all()) {
        devices.append({device.ipAddress, device.macAddress, {}, {}, {}});
    }
    return devices;
}

/// The same, but for one device.
QList<FoundDevice> searchWith(const DocumentData& hall, const FoundDevice& other)
{
    QList<FoundDevice> devices = rightSearch(hall);
    devices.first() = other;
    return devices;
}

/// A walk through all of a hall in which all went well.
WalkReading rightWalk(const DocumentData& hall)
{
    WalkReading walk;
    walk.begun = QDateTime(QDate(2026, 11, 22), QTime(10, 15));
    for (const DeviceData& hub : placedHubs(hall)) {
        walk.hubs.append({hub.ipAddress, hub.label, hub.macAddress, 1, 1, true});
    }
    for (const SceneInfo& layout : hall.scenes) {
        WalkedLayout walked{layout.number, layout.roomGroup, true, {}};
        for (const WalkedHub& hub : std::as_const(walk.hubs)) {
            walked.presets.insert(hub.address, layout.number);
        }
        walk.layouts.append(walked);
    }
    return walk;
}

} // namespace

/// What a search and a walk say of a hall.
class TestFindings : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aDeviceIsKnownByItsMacAddress();
    void anotherDeviceAtTheAddressIsNotTakenForIt();
    void aDeviceAtAnotherAddressIsNamed();
    void aDeviceWithoutMacAddressIsKnownByItsAddress();
    void aDeviceThatDidNotAnswerIsNamed();
    void aDeviceThatIsRefusedIsNamedWithTheReason();
    void aDeviceInNoRoomNeedNotAnswer();
    void aDeviceOfAnotherHallIsAStranger();
    void theOtherPortOfAHubIsNoStranger();
    void aRightWalkIsRight();
    void aHubThatDidNotFollowIsTold();
    void aLayoutThatWasNeverRecalledIsTold();
    void aHubThatIsNotBackIsNamed();
    void aLayoutThatIsAnotherNowCountsAsNotWalked();
    void aHubThatWasExchangedCountsAsNotWalked();
    void aHubThatWasAddedIsNamed();
    void theWalkOfAnotherHallIsKnownAsSuch();
    void aHallWithoutLayoutsIsKnownByItsHubs();

private:
    const DocumentData& hall() const { return m_hall->data(); }
    DeviceData device(const char* address) const
    {
        return *hall().devices.find(QString::fromLatin1(address));
    }

    std::unique_ptr<HallDocument> m_hall;
};

void TestFindings::initTestCase()
{
    TestCase::initTestCase();
    m_hall = readHallJson(sampleHallText()).hall;
    QVERIFY(m_hall != nullptr);
}

void TestFindings::aDeviceIsKnownByItsMacAddress()
{
    const DeviceFindings findings(
        hall(), searchWith(hall(), found("127.0.1.1", "02:1a:ff:00:00:01", "Y1")));
    QCOMPARE(findings.of(device("127.0.1.1")).serialNumber, QStringLiteral("Y1"));
    QCOMPARE(findings.of(device("127.0.1.2")).serialNumber, QString());
    QVERIFY(findings.remarks().isEmpty());
    QVERIFY(findings.strangers().isEmpty());
}

void TestFindings::anotherDeviceAtTheAddressIsNotTakenForIt()
{
    const DeviceFindings findings(
        hall(), searchWith(hall(), found("127.0.1.1", "02:1A:FF:00:00:99", "Y1")));
    QCOMPARE(findings.of(device("127.0.1.1")).serialNumber, QString());
    QCOMPARE(findings.remarks(),
             QStringList(QStringLiteral("Hub-1 (127.0.1.1): another device was found at this "
                                        "address, with the MAC address 02:1A:FF:00:00:99")));
    QVERIFY(findings.strangers().isEmpty());
}

void TestFindings::aDeviceAtAnotherAddressIsNamed()
{
    const DeviceFindings findings(
        hall(), searchWith(hall(), found("127.0.2.1", "02:1A:FF:00:00:01", "Y1")));
    QCOMPARE(findings.of(device("127.0.1.1")).serialNumber, QStringLiteral("Y1"));
    QCOMPARE(findings.remarks(),
             QStringList(QStringLiteral("Hub-1 (127.0.1.1): it was found at 127.0.2.1")));
    QVERIFY(findings.strangers().isEmpty());
}

void TestFindings::aDeviceWithoutMacAddressIsKnownByItsAddress()
{
    const DeviceFindings findings(hall(), {found("127.0.1.1", "", "Y1")});
    QCOMPARE(findings.of(device("127.0.1.1")).serialNumber, QStringLiteral("Y1"));
}

void TestFindings::aDeviceThatDidNotAnswerIsNamed()
{
    QList<FoundDevice> devices = rightSearch(hall());
    devices.removeFirst();
    QCOMPARE(DeviceFindings(hall(), devices).remarks(),
             QStringList(QStringLiteral("Hub-1 (127.0.1.1): it did not answer the search")));
    QCOMPARE(DeviceFindings(hall(), {}).remarks().size(), 7); // all that stand in rooms
}

void TestFindings::aDeviceThatIsRefusedIsNamedWithTheReason()
{
    QList<FoundDevice> devices = rightSearch(hall());
    devices.first().refusal = QStringLiteral("firmware too old: has 1.0.0, needs 2.0.0");
    const DeviceFindings findings(hall(), devices);
    QCOMPARE(
        findings.remarks(),
        QStringList(QStringLiteral("Hub-1 (127.0.1.1): firmware too old: has 1.0.0, needs 2.0.0")));
}

void TestFindings::aDeviceInNoRoomNeedNotAnswer()
{
    QList<FoundDevice> devices = rightSearch(hall());
    QCOMPARE(devices.takeLast().address, QStringLiteral("127.0.1.8"));
    QCOMPARE(DeviceFindings(hall(), devices).remarks(), QStringList());
}

void TestFindings::aDeviceOfAnotherHallIsAStranger()
{
    const DeviceFindings findings(hall(), {found("127.0.9.9", "02:1A:FF:00:00:99")});
    QCOMPARE(findings.strangers(), QStringList(QStringLiteral("127.0.9.9")));
}

void TestFindings::theOtherPortOfAHubIsNoStranger()
{
    const DeviceFindings findings(hall(), {found("127.0.1.1", "02:1A:FF:00:00:01", "Y1"),
                                           found("127.0.9.9", "02:1A:FF:00:00:99", "Y1")});
    QVERIFY(findings.strangers().isEmpty());
}

void TestFindings::aRightWalkIsRight()
{
    const WalkFindings findings(hall(), rightWalk(hall()));
    QVERIFY(findings.isRight());
    QVERIFY(findings.isOfThisHall());
    QCOMPARE(findings.words(hall().scenes.first(), device("127.0.1.1")), QStringLiteral("ok"));
    QVERIFY(findings.contradictions().isEmpty());
    QVERIFY(findings.strangers().isEmpty());
}

void TestFindings::aHubThatDidNotFollowIsTold()
{
    WalkReading walk = rightWalk(hall());
    walk.layouts[1].presets[QStringLiteral("127.0.1.1")] = 1;
    walk.layouts[0].presets[QStringLiteral("127.0.1.2")] = std::nullopt;
    const WalkFindings findings(hall(), walk);
    QVERIFY(!findings.isRight());
    QCOMPARE(findings.words(hall().scenes.at(1), device("127.0.1.1")), QStringLiteral("on 1"));
    QCOMPARE(findings.words(hall().scenes.at(0), device("127.0.1.2")), QStringLiteral("no answer"));
    QVERIFY(findings.contradictions().isEmpty());
}

void TestFindings::aLayoutThatWasNeverRecalledIsTold()
{
    WalkReading walk = rightWalk(hall());
    walk.layouts[1].isReached = false;
    const WalkFindings findings(hall(), walk);
    QVERIFY(!findings.isRight());
    QCOMPARE(findings.words(hall().scenes.at(1), device("127.0.1.1")), QStringLiteral("not tried"));
}

void TestFindings::aHubThatIsNotBackIsNamed()
{
    WalkReading walk = rightWalk(hall());
    walk.hubs[0] = {walk.hubs[0].address, {}, {}, 2, 1, false};
    walk.hubs[1] = {walk.hubs[1].address, {}, {}, std::nullopt, std::nullopt, false};
    const WalkFindings findings(hall(), walk);
    QVERIFY(!findings.isRight());
    QCOMPARE(findings.notBack(),
             QStringList({QStringLiteral("Hub-1 (127.0.1.1): preset 2 was active before and is "
                                         "not again: on 1"),
                          QStringLiteral("127.0.1.2: which preset was active before "
                                         "could not be read")}));
}

void TestFindings::aLayoutThatIsAnotherNowCountsAsNotWalked()
{
    WalkReading walk = rightWalk(hall());
    walk.layouts[1].rooms = QStringLiteral("1/2/3+4");
    walk.layouts[0].rooms = QStringLiteral("4/3/2+1"); // the same rooms as ever
    walk.layouts.append({7, QStringLiteral("1/2"), true, {}});
    const WalkFindings findings(hall(), walk);
    QVERIFY(!findings.isRight());
    QCOMPARE(findings.words(hall().scenes.at(0), device("127.0.1.1")), QStringLiteral("ok"));
    QCOMPARE(findings.words(hall().scenes.at(1), device("127.0.1.1")),
             QStringLiteral("not walked"));
    QCOMPARE(findings.contradictions(),
             QStringList({QStringLiteral("layout 2 was 1/2/3+4 when it was walked, and is 1/2/3/4"),
                          QStringLiteral("layout 7 (1/2) was walked, and the hall has none of this "
                                         "number")}));
}

void TestFindings::aHubThatWasExchangedCountsAsNotWalked()
{
    WalkReading walk = rightWalk(hall());
    walk.hubs[0].macAddress = QStringLiteral("02:1A:FF:00:00:99");
    const WalkFindings findings(hall(), walk);
    QCOMPARE(findings.words(hall().scenes.at(0), device("127.0.1.1")),
             QStringLiteral("not walked"));
    QCOMPARE(findings.contradictions(),
             QStringList(QStringLiteral("Hub-1 (127.0.1.1) was another device when it was walked, "
                                        "with the MAC address 02:1A:FF:00:00:99")));
}

void TestFindings::aHubThatWasAddedIsNamed()
{
    WalkReading walk = rightWalk(hall());
    walk.hubs[0].address = QStringLiteral("127.0.9.9");
    const WalkFindings findings(hall(), walk);
    QCOMPARE(findings.contradictions(),
             QStringList(QStringLiteral("Hub-1 (127.0.1.1) was not walked")));
    QCOMPARE(findings.strangers(), QStringList(QStringLiteral("127.0.9.9")));
}

void TestFindings::theWalkOfAnotherHallIsKnownAsSuch()
{
    WalkReading walk = rightWalk(hall());
    walk.layouts[0].rooms = QStringLiteral("1/2");
    walk.layouts[1].rooms = QStringLiteral("1+2");
    const WalkFindings findings(hall(), walk);
    QVERIFY(!findings.isOfThisHall());
    QVERIFY(!findings.isRight());
}

void TestFindings::aHallWithoutLayoutsIsKnownByItsHubs()
{
    DocumentData emptied = hall();
    emptied.scenes.clear();
    const WalkFindings own(emptied, rightWalk(hall()));
    QVERIFY(own.isOfThisHall());
    QVERIFY(!own.isRight());
    QCOMPARE(own.contradictions(),
             QStringList({QStringLiteral("layout 1 (1+2/3/4) was walked, and the hall has none of "
                                         "this number"),
                          QStringLiteral("layout 2 (1/2/3/4) was walked, and the hall has none of "
                                         "this number")}));
    WalkReading other = rightWalk(hall());
    for (WalkedHub& hub : other.hubs) {
        hub.address.replace(QStringLiteral("127.0.1."), QStringLiteral("127.0.9."));
    }
    QVERIFY(!WalkFindings(emptied, other).isOfThisHall());
}

TESSEL_TEST_MAIN(TestFindings)
#include "tst_findings.moc"
