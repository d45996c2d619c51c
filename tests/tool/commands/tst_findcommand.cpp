#include "cabletest.h"
#include "commandrun.h"
#include "toolrun.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr qsizetype terminalWidth = 80;

/// A hall with these hubs, peripherals and faults, each a JSON list.
QByteArray hallOf(const QByteArray& hubs, const QByteArray& peripherals = "[]",
                  const QByteArray& faults = "[]")
{
    return R"({"base": "10.54.1.1", "discovery": true, "discovery-listen": "10.54.255.255",
               "hubs": )" +
           hubs + R"(, "peripherals": )" + peripherals + R"(, "faults": )" + faults + '}';
}

const QByteArray oneHub = hallOf(R"([{"label": "Stage", "version": "2.1.0", "serial": "H1",
                                      "mac": "02:00:00:00:00:01"}])");
const QString hub = QStringLiteral("10.54.1.1");
const QString find = QStringLiteral("tesselctl find --wait 1 --json ");

QJsonObject device(const NetworkRun& run, const QString& address)
{
    const QJsonArray devices = run.object().value(QLatin1String("devices")).toArray();
    for (const auto& each : devices) {
        if (each.toObject().value(QLatin1String("address")).toString() == address) {
            return each.toObject();
        }
    }
    return {};
}

QString text(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

} // namespace

/// The tool's search across a cable, with a simulated hall at its other end.
class TestFindCommand : public CableTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatADeviceTellsIsListedAndAllIsWell();
    void whatWasFoundIsTakenIntoARecord();
    void tablesKeepToEightyColumns();
    void whatATableShowsIsNotSaidAgain();
    void whatThisComputerLacksComesFirst();
    void queryIsTheWizardsByteForByte();
    void verdictOnADevice_data();
    void verdictOnADevice();
    void secondPortNamesItsHubAndIsNoFault();
    void nobodyAnswering();
    void probeTellsTheCasesApart_data();
    void probeTellsTheCasesApart();
    void addressInAnotherNetworkIsNamed();
    void whatAnswersTextCommandsOnlyIsNotJudged();
    void sideThatCannotSearch_data();
    void sideThatCannotSearch();
    void interruptedSearchEndsOrderly_data();
    void interruptedSearchEndsOrderly();
    void secondInterfaceInTheNetworkIsTold();
    void addressesOfTheCableItselfAreNotProbed_data();
    void addressesOfTheCableItselfAreNotProbed();
    void wrongValuesAreOneLine_data();
    void wrongValuesAreOneLine();
};

void TestFindCommand::whatADeviceTellsIsListedAndAllIsWell()
{
    const NetworkRun run = runBesideHall(oneHub, find);
    QCOMPARE(run.exitCode, 0);
    const QJsonObject found = device(run, hub);
    QCOMPARE(text(found, "label"), QStringLiteral("Stage"));
    QCOMPARE(text(found, "model"), QStringLiteral("PX-HB"));
    QCOMPARE(text(found, "firmware"), QStringLiteral("2.1.0"));
    QCOMPARE(text(found, "mac"), QStringLiteral("02:00:00:00:00:01"));
    QCOMPARE(text(found, "serial"), QStringLiteral("H1"));
    QCOMPARE(found.value(QLatin1String("preset")).toInt(-1), 0);
    QCOMPARE(text(found, "verdict"), QStringLiteral("taken"));
    const QJsonObject side = run.object().value(QLatin1String("interface")).toObject();
    QCOMPARE(text(side, "name"), QStringLiteral("wizard"));
    QCOMPARE(text(side, "address"), QStringLiteral("10.54.0.1"));
}

void TestFindCommand::whatWasFoundIsTakenIntoARecord()
{
    const NetworkRun found = runBesideHall(oneHub, find);
    const QTemporaryDir folder;
    const auto path = [&folder](const char* name) { return folder.filePath(QLatin1String(name)); };
    putFile(path("find.json"), found.output.toUtf8());
    putFile(path("hall.json"), R"({"rooms": ["1.......", "........", "........", "........",
        "........", "........", "........", "........"], "devices": [{"address": ")" +
                                   hub.toUtf8() + R"(", "model": "PX-HB", "room": 1,
        "mac": "02:00:00:00:00:01"}]})");
    const QString o = QStringLiteral("-o");
    QCOMPARE(
        runBuiltTool({QStringLiteral("make"), path("hall.json"), o, path("hall.tessel")}).exitCode,
        0);
    const ToolRun run =
        runBuiltTool({QStringLiteral("report"), path("hall.tessel"), o, path("hall.html"),
                      QStringLiteral("--found"), path("find.json")});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    const QByteArray page = fileAt(path("hall.html"));
    QVERIFY(page.contains(">H1<"));
    QVERIFY(page.contains("the day of the search"));
}

void TestFindCommand::tablesKeepToEightyColumns()
{
    const NetworkRun run = runBesideHall(
        hallOf(R"([{"label": "A label as long as labels of a hall can be", "version": "1.0.0"}])",
               "3"),
        QStringLiteral("tesselctl find --wait 1 --probe 10.54.0.77"));
    QCOMPARE(run.exitCode, 1);
    for (const QString& line : run.output.split(u'\n')) {
        QVERIFY2(line.size() <= terminalWidth, qPrintable(line));
    }
    for (const char* shown : {"10.54.1.1", "02:1A:00:00:00:01", "PX-HB", "1.0.0", "needs 2",
                              "taken", "10.54.1.4", "none", "10.54.0.77", "silent"}) {
        QVERIFY2(run.output.contains(QLatin1String(shown)), shown);
    }
}

void TestFindCommand::whatATableShowsIsNotSaidAgain()
{
    const NetworkRun run =
        runBesideHall(hallOf(R"([{"version": "1.0.0"}])"),
                      QStringLiteral("tesselctl find --wait 1 --probe 10.54.0.77 2>&1"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output.count(QStringLiteral("firmware too old")), 1);
    QCOMPARE(run.output.count(QStringLiteral("silent")), 1);
}

void TestFindCommand::whatThisComputerLacksComesFirst()
{
    const NetworkRun run = runBesideHall(
        oneHub,
        QStringLiteral("ip link add second type veth peer name other; ip address add "
                       "10.54.0.9/16 dev second; tesselctl find --wait 1 --interface wizard "
                       "2>&1"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.output.startsWith(u"tesselctl: wizard and second have addresses in one network"),
             qPrintable(run.output));
    QVERIFY(run.output.contains(u"Verdict"));
}

void TestFindCommand::queryIsTheWizardsByteForByte()
{
    const NetworkRun run = runBesideHall(
        hallOf("2", "[]", R"([{"device": "10.54.1.1", "at": "discovery", "kind": "direct-only"}])"),
        find + QStringLiteral("--probe 10.54.1.1"));
    QVERIFY(!device(run, hub).isEmpty());
    QVERIFY2(run.hall.contains(QStringLiteral("Every message was as prescribed.")),
             qPrintable(run.errors));
}

void TestFindCommand::verdictOnADevice_data()
{
    QTest::addColumn<QByteArray>("hall");
    QTest::addColumn<QString>("verdict");
    QTest::addColumn<QString>("reason");
    const auto row = [](const QByteArray& hall, const char* verdict, const char* reason) {
        QTest::newRow(verdict) << hall << QString::fromLatin1(verdict)
                               << QString::fromLatin1(reason);
    };
    row(hallOf(R"([{"version": "1.9.9"}])"), "firmware-too-old",
        "firmware too old: has 1.9.9, needs 2");
    row(hallOf("[]", R"([{"model": "KETTLE", "version": "9.0"}])"), "unknown-model",
        "unknown model");
    row(hallOf("1", "[]", R"([{"device": "10.54.1.1", "kind": "refuse-commands"}])"), "no-identity",
        "answered the query, but never told its identity");
}

void TestFindCommand::verdictOnADevice()
{
    QFETCH(const QByteArray, hall);
    const NetworkRun run = runBesideHall(hall, find);
    QCOMPARE(run.exitCode, 1);
    QTEST(text(device(run, hub), "verdict"), "verdict");
    QTEST(text(device(run, hub), "reason"), "reason");
    QFETCH(const QString, reason);
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: 10.54.1.1: ") + reason),
             qPrintable(run.errors));
}

void TestFindCommand::secondPortNamesItsHubAndIsNoFault()
{
    const NetworkRun run =
        runBesideHall(hallOf(R"([{"mac": "02:00:00:00:00:09", "second-address": "10.54.2.1",
                                  "second-mac": "02:00:00:00:00:01"}])"),
                      find);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(text(device(run, QStringLiteral("10.54.2.1")), "verdict"), QStringLiteral("taken"));
    QCOMPARE(text(device(run, hub), "verdict"), QStringLiteral("second-port"));
    QCOMPARE(text(device(run, hub), "other"), QStringLiteral("10.54.2.1"));
}

void TestFindCommand::nobodyAnswering()
{
    const NetworkRun run =
        runBesideHall(hallOf("1", "[]", R"([{"at": "discovery", "kind": "no-reply"}])"), find);
    QCOMPARE(run.exitCode, 1);
    QVERIFY(run.object().value(QLatin1String("devices")).toArray().isEmpty());
    QVERIFY2(run.errors.contains(QStringLiteral("no device answered on wizard (10.54.0.1)")),
             qPrintable(run.errors));
}

void TestFindCommand::probeTellsTheCasesApart_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QByteArray>("faults");
    QTest::addColumn<QString>("result");
    QTest::addColumn<bool>("isListed");
    const auto row = [](const char* result, const char* address, const QByteArray& faults,
                        bool isListed) {
        QTest::newRow(result) << QString::fromLatin1(address) << faults
                              << QString::fromLatin1(result) << isListed;
    };
    const QByteArray silent = R"({"device": "10.54.1.1", "at": "discovery", "kind": "no-reply"})";
    row("answers", "10.54.1.1", "[]", true);
    row("answers-only-directly", "10.54.1.1",
        R"([{"device": "10.54.1.1", "at": "discovery", "kind": "direct-only"}])", true);
    row("text-commands-only", "10.54.1.1", '[' + silent + ']', false);
    row("refuses", "10.54.1.1",
        '[' + silent + R"(, {"device": "10.54.1.1", "kind": "refuse-commands"}])", false);
    row("silent", "10.54.0.77", "[]", false);
}

void TestFindCommand::probeTellsTheCasesApart()
{
    QFETCH(const QString, address);
    QFETCH(const QByteArray, faults);
    QFETCH(const bool, isListed);
    const NetworkRun run =
        runBesideHall(hallOf("2", "[]", faults), find + QStringLiteral("--probe ") + address);
    const QJsonArray probes = run.object().value(QLatin1String("probes")).toArray();
    QCOMPARE(probes.size(), 1);
    QTEST(text(probes.first().toObject(), "result"), "result");
    QFETCH(const QString, result);
    const QString verdict = result == u"answers" ? QStringLiteral("taken") : result;
    QCOMPARE(text(device(run, address), "verdict"), isListed ? verdict : QString());
    QCOMPARE(run.exitCode, result == u"answers" ? 0 : 1);
}

void TestFindCommand::addressInAnotherNetworkIsNamed()
{
    const NetworkRun run = runBesideHall(oneHub, find + QStringLiteral("--probe 10.55.0.7"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u"tesselctl: 10.55.0.7: silent: nobody is there, or nothing gets "
                                 "through; 10.55.0.7 is not in the network of wizard "
                                 "(10.54.0.1/16)\n"),
             qPrintable(run.errors));
    const QJsonObject probe =
        run.object().value(QLatin1String("probes")).toArray().first().toObject();
    QVERIFY(text(probe, "reason").endsWith(u"the network of wizard (10.54.0.1/16)"));
}

void TestFindCommand::whatAnswersTextCommandsOnlyIsNotJudged()
{
    const NetworkRun run =
        runBesideHall(hallOf(R"([{"label": "Stage", "version": "1.0", "serial": "H1"}])", "[]",
                             R"([{"at": "discovery", "kind": "no-reply"}])"),
                      find + QStringLiteral("--probe 10.54.1.1"));
    const QJsonObject probe =
        run.object().value(QLatin1String("probes")).toArray().first().toObject();
    QCOMPARE(text(probe, "label"), QStringLiteral("Stage"));
    QCOMPARE(text(probe, "firmware"), QStringLiteral("1.0"));
    QCOMPARE(text(probe, "serial"), QStringLiteral("H1"));
    QVERIFY(!probe.contains(QLatin1String("verdict")));
    QVERIFY(run.object().value(QLatin1String("devices")).toArray().isEmpty());
}

void TestFindCommand::sideThatCannotSearch_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QString& command, const char* reason) {
        QTest::newRow(name) << command << QString::fromLatin1(reason);
    };
    row("no address", QStringLiteral("ip address flush dev wizard; ") + find,
        "no wired interface has an IPv4 address: wizard");
    row("no such interface", find + QStringLiteral("--interface eth9"),
        "there is no wired interface \"eth9\"; there are: wizard");
    row("no wired interface", QStringLiteral("ip link delete wizard; ") + find,
        "this computer has no wired interface");
    // The first search has answered its watcher when the second begins.
    row("the port in use",
        QStringLiteral("tesselctl find --wait 20 >/dev/null 2>&1 & first=$!; "
                       "until ss -lun | grep -q :54330; do :; done; ") +
            find + QStringLiteral("; code=$?; kill $first; exit $code"),
        "UDP port 54330 of 10.54.0.1 is in use");
}

void TestFindCommand::sideThatCannotSearch()
{
    QFETCH(const QString, command);
    QFETCH(const QString, reason);
    const NetworkRun run = runBesideHall(oneHub, command);
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: ") + reason), qPrintable(run.errors));
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QString());
}

void TestFindCommand::interruptedSearchEndsOrderly_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("find") << QStringLiteral("find");
    QTest::newRow("replace") << QStringLiteral(
        "replace hall.tessel 10.54.1.1 10.54.1.9 --mac 02:00:00:00:00:09 -o "
        "new.tessel");
}

void TestFindCommand::interruptedSearchEndsOrderly()
{
    QFETCH(const QString, command);
    put("hall.json", R"({"rooms": ["1.......", "........", "........", "........", "........",
        "........", "........", "........"], "devices": [{"address": "10.54.1.1",
        "model": "PX-HB", "room": 1, "mac": "02:00:00:00:00:01"}]})");
    const NetworkRun run = runBesideHall(
        oneHub, QStringLiteral(
                    "cd '%1'; tesselctl make hall.json -o hall.tessel; "
                    "tesselctl %2 --wait 60 & until ss -lun | grep -q :54330; do :; "
                    "done; kill -INT $(ss -lunp | sed -n 's/.*:54330 .*pid=\\([0-9]*\\).*/\\1/p'); "
                    "wait $!")
                    .arg(path("."), command));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"the search was interrupted"), qPrintable(run.errors));
    QCOMPARE(run.output, QString());
    QVERIFY(!QFile::exists(path("new.tessel")));
}

void TestFindCommand::secondInterfaceInTheNetworkIsTold()
{
    const NetworkRun run =
        runBesideHall(oneHub, QStringLiteral("ip link add second type veth peer name other; "
                                             "ip address add 10.54.0.9/16 dev second; ") +
                                  find + QStringLiteral("--interface wizard"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(
                 QStringLiteral("tesselctl: wizard and second have addresses in one network")),
             qPrintable(run.errors));
    QCOMPARE(text(device(run, hub), "verdict"), QStringLiteral("taken"));
}

void TestFindCommand::addressesOfTheCableItselfAreNotProbed_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("reason");
    QTest::newRow("its broadcast")
        << QStringLiteral("10.54.255.255") << QStringLiteral("is no address of one device");
    QTest::newRow("this computer's")
        << QStringLiteral("10.54.0.1") << QStringLiteral("is an address of this computer");
}

void TestFindCommand::addressesOfTheCableItselfAreNotProbed()
{
    QFETCH(const QString, address);
    QFETCH(const QString, reason);
    const NetworkRun run = runBesideHall(oneHub, find + QStringLiteral("--probe ") + address);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.contains(
                 QStringLiteral("tesselctl: find: --probe %1: %2\n").arg(reason, address)),
             qPrintable(run.errors));
}

void TestFindCommand::wrongValuesAreOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* option, const char* value, const char* line) {
        QTest::newRow(line) << QStringList{QLatin1String(option), QLatin1String(value)}
                            << QStringLiteral("tesselctl: find: %1\n").arg(QLatin1String(line));
    };
    row("--probe", "hub", "--probe is no IPv4 address: hub");
    row("--probe", "10.1", "--probe is no IPv4 address: 10.1");
    row("--probe", "0.0.0.0", "--probe is no address of one device: 0.0.0.0");
    row("--probe", "255.255.255.255", "--probe is no address of one device: 255.255.255.255");
    row("--probe", "239.1.2.3", "--probe is no address of one device: 239.1.2.3");
    row("--probe", "127.0.0.1", "--probe is an address of this computer: 127.0.0.1");
    row("--wait", "soon", "--wait is no number of seconds from 0 to 3600: soon");
    row("--wait", "-1", "--wait is no number of seconds from 0 to 3600: -1");
}

void TestFindCommand::wrongValuesAreOneLine()
{
    QFETCH(const QStringList, arguments);
    const ToolRun run = runBuiltTool(QStringList{QStringLiteral("find")} + arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, QString());
    QTEST(run.errors, "line");
}

TESSEL_TEST_MAIN(TestFindCommand)
#include "tst_findcommand.moc"
