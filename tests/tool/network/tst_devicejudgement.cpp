#include "devicejudgement.h"
#include "testcase.h"

#include <QTest>

namespace {

SeenDevice device(const char* address, const char* model, const char* version,
                  const char* serial = "S1")
{
    SeenDevice seen;
    seen.record.ipAddress = QString::fromLatin1(address);
    seen.record.modelName = QString::fromLatin1(model);
    seen.record.version = QString::fromLatin1(version);
    seen.record.serialNumber = QString::fromLatin1(serial);
    seen.isIdentified = true;
    seen.isAnnounced = true;
    return seen;
}

SeenDevice hidden(SeenDevice seen)
{
    seen.isAnnounced = false;
    return seen;
}

SeenDevice unreached(SeenDevice seen)
{
    seen.isReached = false;
    return seen;
}

SeenDevice mute(SeenDevice seen)
{
    seen.isIdentified = false;
    return hidden(seen);
}

} // namespace

/// What is said of devices that answered a search.
class TestDeviceJudgement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void verdictOnOneDevice_data();
    void verdictOnOneDevice();
    void aHubsOtherPortNamesTheAddressUnderWhichItIsListed();
    void twoAddressesOfOneMacNameEachOther();
    void hubThatIsStillWaitedForHasNoTwin();
    void devicesStandInTheOrderOfTheirAddresses();
};

void TestDeviceJudgement::verdictOnOneDevice_data()
{
    QTest::addColumn<SeenDevice>("seen");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* name, const SeenDevice& seen, const char* words) {
        QTest::newRow(words) << seen << QString::fromLatin1(name) << QString::fromLatin1(words);
    };
    row("taken", device("10.0.0.1", "PX-HB", "2.1.0"), "taken");
    row("firmware-too-old", device("10.0.0.1", "PX-HB", "0.9.0"),
        "firmware too old: has 0.9.0, needs 2");
    row("firmware-too-old", device("10.0.0.1", "PX-HB", ""), "firmware too old: has none, needs 2");
    row("unknown-model", device("10.0.0.1", "KETTLE", "9"), "unknown model");
    row("answers-only-directly", unreached(device("10.0.0.1", "PX-HB", "2.1.0")),
        "answers only when asked directly: the wizard does not find it");
    row("firmware-too-old", unreached(device("10.0.0.1", "PX-HB", "0.9.1")),
        "firmware too old: has 0.9.1, needs 2");
    row("no-identity", mute(device("10.0.0.1", "PX-HB", "")),
        "answered the query, but never told its identity");
}

void TestDeviceJudgement::verdictOnOneDevice()
{
    QFETCH(const SeenDevice, seen);
    const JudgedDevice found = judged({seen}).first();
    QTEST(verdictName(found.verdict), "name");
    QTEST(verdictWords(found), "words");
}

void TestDeviceJudgement::aHubsOtherPortNamesTheAddressUnderWhichItIsListed()
{
    const QList<JudgedDevice> found =
        judged({device("10.0.0.1", "PX-HB", "2.1"), device("10.0.0.2", "PX-HB", "2.1", "S2"),
                hidden(device("10.0.0.3", "PX-HB", "2.1", "S2"))});
    QCOMPARE(verdictName(found.at(2).verdict), QStringLiteral("second-port"));
    QCOMPARE(verdictWords(found.at(2)), QStringLiteral("second port of the hub at 10.0.0.2"));
}

void TestDeviceJudgement::twoAddressesOfOneMacNameEachOther()
{
    const QList<JudgedDevice> found = judged(
        {hidden(device("10.0.0.1", "PX-HB", "2.1")), hidden(device("10.0.0.2", "PX-HB", "2.1"))});
    QCOMPARE(verdictName(found.first().verdict), QStringLiteral("same-mac"));
    QCOMPARE(found.first().otherAddress, QStringLiteral("10.0.0.2"));
    QCOMPARE(found.last().otherAddress, QStringLiteral("10.0.0.1"));
}

void TestDeviceJudgement::hubThatIsStillWaitedForHasNoTwin()
{
    const QList<JudgedDevice> found = judged({hidden(device("10.0.0.1", "PX-HB", "2.1")),
                                              device("10.0.0.2", "PX-HB", "2.1", "S2"),
                                              hidden(device("10.0.0.3", "PX-HB", "1.0", "S3"))});
    QCOMPARE(verdictName(found.first().verdict), QStringLiteral("taken"));
    QCOMPARE(verdictName(found.last().verdict), QStringLiteral("firmware-too-old"));
}

void TestDeviceJudgement::devicesStandInTheOrderOfTheirAddresses()
{
    const QList<JudgedDevice> found =
        judged({device("10.0.0.10", "PX-HB", "2.1"), device("10.0.0.9", "PX-HB", "2.1", "S2")});
    QCOMPARE(found.first().record.ipAddress, QStringLiteral("10.0.0.9"));
}

TESSEL_TEST_MAIN(TestDeviceJudgement)
#include "tst_devicejudgement.moc"
