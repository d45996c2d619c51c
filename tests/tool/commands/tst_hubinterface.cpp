#include "cabletest.h"

#include <QTest>

namespace {

/// Peripherals follow every number, so that two of them stand for hubs.
const QByteArray site = R"({"base": "10.54.1.1", "discovery": true,
    "discovery-listen": "10.54.255.255", "hubs": [], "peripherals": 2})";

/// A hall with the first of them, and with a hub in another network.
const QByteArray hallText = R"({
  "rooms": ["11112222", "11112222", "11112222", "11112222",
            "........", "........", "........", "........"],
  "devices": [
    {"address": "10.54.1.1", "model": "PX-HB", "mac": "02:00:00:00:00:01", "room": 1},
    {"address": "10.55.1.2", "model": "PX-HB", "mac": "02:00:00:00:00:02", "room": 2}],
  "layouts": [{"rooms": "1/2"}]})";

const QString elsewhere =
    QStringLiteral("tesselctl: 10.55.1.2 is not in the network of wizard (10.54.0.1/16)\n");

const QString makes = QStringLiteral("tesselctl make hall.json -o hall.tessel; ");

} // namespace

/// `recall` and `walk` across a cable: from where they ask, and which hub cannot be reached.
class TestHubInterface : public CableTest
{
    Q_OBJECT

private Q_SLOTS:
    void hubInAnotherNetworkIsNamed_data();
    void hubInAnotherNetworkIsNamed();
    void hubThatAnswersIsNotNamed();
    void hallInAnotherNetworkIsNamed_data();
    void hallInAnotherNetworkIsNamed();
    void interfaceThatIsNotThereRecallsNothing_data();
    void interfaceThatIsNotThereRecallsNothing();
    void anotherInterfaceInTheNetworkIsTold();

private:
    NetworkRun run(const QString& command, const QString& before = {}) const;
};

NetworkRun TestHubInterface::run(const QString& command, const QString& before) const
{
    put("hall.json", hallText);
    return runTool(site, command, before + makes);
}

void TestHubInterface::hubInAnotherNetworkIsNamed_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("recall") << QStringLiteral("recall 1 hall.tessel");
    QTest::newRow("recall by an interface")
        << QStringLiteral("recall 1 hall.tessel --interface wizard");
    QTest::newRow("walk") << QStringLiteral("walk hall.tessel --yes --settle 0");
    QTest::newRow("walk by an interface")
        << QStringLiteral("walk hall.tessel --yes --settle 0 --interface wizard");
}

void TestHubInterface::hubInAnotherNetworkIsNamed()
{
    QFETCH(const QString, command);
    const NetworkRun result = run(command);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(elsewhere), qPrintable(result.errors));
}

void TestHubInterface::hubThatAnswersIsNotNamed()
{
    const NetworkRun result = run(QStringLiteral("recall 1 hall.tessel"));
    QVERIFY2(!result.errors.contains(u"10.54.1.1 is not in"), qPrintable(result.errors));
}

void TestHubInterface::hallInAnotherNetworkIsNamed_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("recall") << QStringLiteral("recall 1 hall.tessel");
    QTest::newRow("walk") << QStringLiteral("walk hall.tessel --yes --settle 0");
}

void TestHubInterface::hallInAnotherNetworkIsNamed()
{
    QFETCH(const QString, command);
    const NetworkRun result =
        run(command, QStringLiteral("sed -i s/10.54.1.1/10.54.1.77/ hall.json; "));
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.errors.contains(u"tesselctl: no hub answered\n"), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(elsewhere), qPrintable(result.errors));
}

void TestHubInterface::interfaceThatIsNotThereRecallsNothing_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("recall") << QStringLiteral("recall 1 hall.tessel --interface wizrad");
    QTest::newRow("walk") << QStringLiteral("walk hall.tessel --yes --interface wizrad");
}

void TestHubInterface::interfaceThatIsNotThereRecallsNothing()
{
    QFETCH(const QString, command);
    const NetworkRun result = run(command);
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.errors.contains(u"tesselctl: there is no wired interface \"wizrad\"; there "
                                    "are: wizard\n"),
             qPrintable(result.errors));
    QVERIFY2(!result.errors.contains(u"will be recalled"), qPrintable(result.errors));
    QCOMPARE(result.output, QString());
}

void TestHubInterface::anotherInterfaceInTheNetworkIsTold()
{
    const NetworkRun result = run(QStringLiteral("recall 1 hall.tessel --interface wizard"),
                                  QStringLiteral("ip link add second type veth peer name other; "
                                                 "ip address add 10.54.0.9/16 dev second; "));
    QVERIFY2(result.errors.contains(u"tesselctl: wizard and second have addresses in one network"),
             qPrintable(result.errors));
}

TESSEL_TEST_MAIN(TestHubInterface)
#include "tst_hubinterface.moc"
