#include "cabletest.h"
#include "hallfile.h"
#include "halljson.h"
#include "toolrun.h"

#include <QFile>
#include <QJsonDocument>
#include <QTest>

namespace {

const QString hub = QStringLiteral("10.54.1.1");
const QString otherHub = QStringLiteral("10.54.1.2");
const QString speaker = QStringLiteral("10.54.1.3");
const QString microphone = QStringLiteral("10.54.1.4");
const QString spare = QStringLiteral("10.54.1.5");
const QString fresh = QStringLiteral("10.54.1.21");
const QString freshMac = QStringLiteral("02:00:00:00:00:21");
const QString noCable = QStringLiteral("ip link delete wizard; ");

/// Two rooms with a hub each; in the first a speaker, which stands on the right where the rooms are
/// combined, and a microphone that is not used there. A microphone stands in no room.
const QByteArray hallText = R"({
  "rooms": ["11112222", "11112222", "11112222", "11112222",
            "........", "........", "........", "........"],
  "devices": [
    {"address": "10.54.1.1", "model": "PX-HB", "mac": "02:00:00:00:00:01", "room": 1,
     "label": "Old"},
    {"address": "10.54.1.2", "model": "PX-HB", "mac": "02:00:00:00:00:02", "room": 2,
     "label": "Gallery", "renamed": true},
    {"address": "10.54.1.3", "model": "LQA4-08S", "mac": "02:00:00:00:00:03", "room": 1},
    {"address": "10.54.1.4", "model": "PX-DL8", "mac": "02:00:00:00:00:04", "room": 1},
    {"address": "10.54.1.5", "model": "PX-DL8", "mac": "02:00:00:00:00:05"}],
  "layouts": [
    {"rooms": "1/2"},
    {"rooms": "1+2", "combined": [
      {"rooms": "1+2", "removed": ["10.54.1.2", "10.54.1.4"], "right": ["10.54.1.3"]}]}]})";

/// A simulated hall of one device, which came with the new one's address, MAC address and label
/// unless `texts` say otherwise.
QByteArray oneDevice(const QByteArray& kind, const QByteArray& texts, const QByteArray& faults = {})
{
    return R"({"base": "10.54.1.1", "discovery": true, "discovery-listen": "10.54.255.255", ")" +
           kind + R"(": [{)" + texts + R"(}], "faults": [)" + faults + "]}";
}

QByteArray freshTexts(const QByteArray& more = R"("version": "2.1.0")")
{
    return R"("address": "10.54.1.21", "mac": "02:00:00:00:00:21", "label": "Fresh", )" + more;
}

const QByteArray freshHub = oneDevice("hubs", freshTexts());

} // namespace

/// `replace`, across a cable with the new device at its other end.
class TestReplaceCommand : public CableTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aHubTakesOverItsRoomAndSetsAndKeepsItsName();
    void aSpeakerTakesOverItsSide();
    void aRemovedMicrophoneStaysRemoved();
    void theSameAddressMayHaveAnotherDevice();
    void whatIsThereAsBeforeIsNotReplaced();
    void whatIsSilentIsNotReplacedByItself();
    void aNameThatWasGivenIsGivenAgain();
    void aLabelThatIsAskedForIsGiven();
    void aSilentDeviceNeedsItsMacAddress();
    void whereNothingCanBeAskedTheMacAddressIsNeeded();
    void withItsMacAddressADeviceNeedNotAnswer();
    void whereItsMacAddressDoesNotHelpNothingIsWritten_data();
    void whereItsMacAddressDoesNotHelpNothingIsWritten();
    void whatSpeaksAgainstItIsNamedAndNothingIsWritten_data();
    void whatSpeaksAgainstItIsNamedAndNothingIsWritten();
    void anotherModelOfTheSameClassIsSaid();
    void whatIsLostOnTheWayIsSaid();
    void theMacAddressOfAnotherDeviceIsRefused();
    void formerFaultsDoNotStandInTheWay();
    void nothingElseChangesInAnOddHall();
    void onlyHubsThatAreSentSomethingElseAreNamed();
    void theNextCommandCanBePasted();
    void exchangedAddressesTakeThreeSteps_data();
    void exchangedAddressesTakeThreeSteps();
    void wrongUsageIsOneLine_data();
    void wrongUsageIsOneLine();

private:
    void writeHall(const QByteArray& text) const;
    NetworkRun replace(const QByteArray& hall, const QString& arguments,
                       const QString& before = {}) const;
    HallReading written() const { return readHallFile(path("new.tessel")); }
    bool isWritten() const { return QFile::exists(path("new.tessel")); }
};

void TestReplaceCommand::init()
{
    TestCase::init();
    QFile::remove(path("new.tessel"));
    writeHall(hallText);
}

void TestReplaceCommand::writeHall(const QByteArray& text) const
{
    const HallJsonReading reading = readHallJson(text);
    QVERIFY2(reading.hall != nullptr, qPrintable(reading.faults.join(u'\n')));
    QCOMPARE(writeHallFile(path("hall.tessel"), reading.hall->data()), QString());
}

/// Runs it beside a simulated hall, after these commands of a shell.
NetworkRun TestReplaceCommand::replace(const QByteArray& hall, const QString& arguments,
                                       const QString& before) const
{
    return runTool(hall, QStringLiteral("replace hall.tessel %1 -o new.tessel").arg(arguments),
                   before);
}

void TestReplaceCommand::aHubTakesOverItsRoomAndSetsAndKeepsItsName()
{
    const NetworkRun run = replace(freshHub, hub + u' ' + fresh);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QCOMPARE(run.output, QString());
    const HallReading reading = written();
    QVERIFY2(reading.hall != nullptr, qPrintable(reading.fault));
    const DocumentData& data = reading.hall->data();
    QVERIFY(data.devices.find(hub) == nullptr);
    const DeviceData& device = data.devices.all().first();
    QCOMPARE(device.ipAddress, fresh);
    QCOMPARE(device.macAddress, freshMac);
    QCOMPARE(device.roomNumber, 1);
    QCOMPARE(device.label, QStringLiteral("Fresh"));
    QVERIFY(!device.labelModified);
    QVERIFY(data.deviceSets.find(1, 1, fresh) != nullptr);
    QVERIFY(data.deviceSets.find(3, 2, fresh) != nullptr);
    QVERIFY(data.deviceSets.firstInLayout(1, hub) == nullptr);
    QVERIFY2(run.errors.contains(u"tesselctl: next: tesselctl install new.tessel --hub 10.54.1.21"),
             qPrintable(run.errors));
}

void TestReplaceCommand::aSpeakerTakesOverItsSide()
{
    const NetworkRun run =
        replace(oneDevice("peripherals", freshTexts(R"("version": "2.1.0", "model": "LQA4-08S")")),
                speaker + u' ' + fresh);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = written();
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(reading.hall->data().deviceSets.find(3, 2, fresh)->speakerPosition,
             QStringLiteral("R"));
    QCOMPARE(reading.hall->data().deviceSets.find(1, 1, fresh)->speakerPosition,
             QStringLiteral("L"));
}

void TestReplaceCommand::aRemovedMicrophoneStaysRemoved()
{
    const NetworkRun run =
        replace(oneDevice("peripherals", freshTexts(R"("version": "2.1.0", "model": "PX-DL8")")),
                microphone + u' ' + fresh);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = written();
    QVERIFY(reading.hall != nullptr);
    QVERIFY(reading.hall->data().deviceSets.find(3, 2, fresh)->remove);
    QVERIFY(!reading.hall->data().deviceSets.find(1, 1, fresh)->remove);
}

void TestReplaceCommand::theSameAddressMayHaveAnotherDevice()
{
    const NetworkRun run =
        replace(oneDevice("hubs", R"("address": "10.54.1.1", "mac": "02:00:00:00:00:21",
                                     "version": "2.1.0")"),
                hub + u' ' + hub);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = written();
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(reading.hall->data().devices.find(hub)->macAddress, freshMac);
    QCOMPARE(reading.hall->data().devices.find(hub)->roomNumber, 1);
    QVERIFY(reading.hall->data().deviceSets.find(3, 2, hub) != nullptr);
}

void TestReplaceCommand::whatIsThereAsBeforeIsNotReplaced()
{
    const NetworkRun run =
        replace(oneDevice("hubs", R"("address": "10.54.1.1", "mac": "02:00:00:00:00:01",
                                     "version": "2.1.0")"),
                hub + u' ' + hub);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u"tesselctl: 10.54.1.1: the device with the MAC address "
                                 "02:00:00:00:00:01 is there as before\n"),
             qPrintable(run.errors));
    QVERIFY(!isWritten());
}

void TestReplaceCommand::whatIsSilentIsNotReplacedByItself()
{
    const NetworkRun run = replace(
        freshHub, otherHub + u' ' + otherHub + QStringLiteral(" --mac 02:00:00:00:00:02"), noCable);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u"tesselctl: 10.54.1.2: the MAC address 02:00:00:00:00:02 is that "
                                 "of the device that is to be replaced\n"),
             qPrintable(run.errors));
    QVERIFY(!isWritten());
}

void TestReplaceCommand::aNameThatWasGivenIsGivenAgain()
{
    const NetworkRun run = replace(freshHub, otherHub + u' ' + fresh);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = written();
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(reading.hall->data().devices.find(fresh)->label, QStringLiteral("Gallery"));
    QVERIFY(reading.hall->data().devices.find(fresh)->labelModified);
}

void TestReplaceCommand::aLabelThatIsAskedForIsGiven()
{
    const NetworkRun run =
        replace(freshHub, hub + u' ' + fresh + QStringLiteral(" --label Stage-2"));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = written();
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(reading.hall->data().devices.find(fresh)->label, QStringLiteral("Stage-2"));
    QVERIFY(reading.hall->data().devices.find(fresh)->labelModified);
}

void TestReplaceCommand::aSilentDeviceNeedsItsMacAddress()
{
    const NetworkRun run = replace(freshHub, hub + QStringLiteral(" 10.54.0.77"));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"tesselctl: 10.54.0.77: silent: nobody is there, or nothing gets "
                                 "through; its MAC address has to be given with --mac\n"),
             qPrintable(run.errors));
    QVERIFY(!isWritten());
}

void TestReplaceCommand::whereNothingCanBeAskedTheMacAddressIsNeeded()
{
    const NetworkRun run = replace(freshHub, hub + u' ' + fresh, noCable);
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"tesselctl: 10.54.1.21: it could not be asked: this computer has "
                                 "no wired interface; its MAC address has to be given"),
             qPrintable(run.errors));
    QVERIFY(!isWritten());
}

void TestReplaceCommand::withItsMacAddressADeviceNeedNotAnswer()
{
    const NetworkRun run =
        replace(freshHub, hub + u' ' + fresh + QStringLiteral(" --mac 02:00:00:00:0a:21"), noCable);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY2(run.errors.contains(u"tesselctl: 10.54.1.21: it is taken to be a PX-HB, as the device "
                                 "that it replaces\n"),
             qPrintable(run.errors));
    const HallReading reading = written();
    QVERIFY(reading.hall != nullptr);
    const DeviceData& device = *reading.hall->data().devices.find(fresh);
    QCOMPARE(device.macAddress, QStringLiteral("02:00:00:00:0A:21"));
    QCOMPARE(device.modelName, QStringLiteral("PX-HB"));
    QCOMPARE(device.label, QStringLiteral("Old"));
    QVERIFY(!device.labelModified);
}

void TestReplaceCommand::whereItsMacAddressDoesNotHelpNothingIsWritten_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("line");
    QTest::newRow("something else is there")
        << QStringLiteral("10.54.1.30") << 1
        << QStringLiteral("10.54.1.30: refuses: something is there, but no device of a conference "
                          "system\n");
    QTest::newRow("no such interface")
        << fresh + QStringLiteral(" --interface wizrad") << 3
        << QStringLiteral("10.54.1.21: it could not be asked: there is no wired interface "
                          "\"wizrad\"; there are: wizard\n");
    QTest::newRow("this computer")
        << QStringLiteral("10.54.0.1") << 2
        << QStringLiteral("replace: NEW is an address of this computer: 10.54.0.1\n");
    QTest::newRow("everyone") << QStringLiteral("10.54.255.255") << 2
                              << QStringLiteral(
                                     "replace: NEW is no address of one device: 10.54.255.255\n");
}

void TestReplaceCommand::whereItsMacAddressDoesNotHelpNothingIsWritten()
{
    QFETCH(const QString, address);
    QFETCH(const QString, line);
    const NetworkRun run =
        replace(freshHub, hub + u' ' + address + QStringLiteral(" --mac 02:00:00:00:00:21"));
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: ") + line), qPrintable(run.errors));
    QTEST(run.exitCode, "code");
    QVERIFY(!isWritten());
}

void TestReplaceCommand::whatSpeaksAgainstItIsNamedAndNothingIsWritten_data()
{
    QTest::addColumn<QByteArray>("hall");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const QByteArray& hall, const char* options,
                        const char* line) {
        QTest::newRow(name) << hall << hub + u' ' + fresh + u' ' + QLatin1String(options)
                            << QStringLiteral("tesselctl: 10.54.1.21: ") + QLatin1String(line) +
                                   u'\n';
    };
    row("another MAC address", freshHub, "--mac 02:00:00:00:00:22",
        "its MAC address is 02:00:00:00:00:21, not 02:00:00:00:00:22");
    row("another class",
        oneDevice("peripherals", freshTexts(R"("version": "2.1.0", "model": "PX-DL8")")), "",
        "it is a microphone (PX-DL8), and the device that it is to replace is a hub (PX-HB)");
    row("old firmware", oneDevice("hubs", freshTexts(R"("version": "1.9")")), "",
        "firmware too old: has 1.9, needs 2");
    row("an unknown model",
        oneDevice("peripherals", freshTexts(R"("version": "2.1.0", "model": "KETTLE")")), "",
        "unknown model");
    row("no identity",
        oneDevice("hubs", freshTexts(), R"({"device": "10.54.1.21", "kind": "refuse-commands"})"),
        "--mac 02:00:00:00:00:21", "answered the query, but never told its identity");
    row("the second port", oneDevice("hubs", R"("address": "10.54.1.21", "mac": "02:00:00:00:00:29",
                             "version": "2.1.0", "second-address": "10.54.1.22",
                             "second-mac": "02:00:00:00:00:21")"),
        "", "second port of the hub at 10.54.1.22");
}

void TestReplaceCommand::whatSpeaksAgainstItIsNamedAndNothingIsWritten()
{
    QFETCH(const QByteArray, hall);
    QFETCH(const QString, arguments);
    QFETCH(const QString, line);
    const NetworkRun run = replace(hall, arguments);
    QVERIFY2(run.errors.contains(line), qPrintable(run.errors));
    QCOMPARE(run.exitCode, 1);
    QVERIFY(!isWritten());
}

void TestReplaceCommand::anotherModelOfTheSameClassIsSaid()
{
    const NetworkRun run =
        replace(oneDevice("peripherals", freshTexts(R"("version": "2.1.0", "model": "PX-DL5")")),
                microphone + u' ' + fresh);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY2(run.errors.contains(u"tesselctl: 10.54.1.21: it is a PX-DL5, and the device that it "
                                 "replaces was a PX-DL8\n"),
             qPrintable(run.errors));
    const HallReading reading = written();
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(reading.hall->data().devices.find(fresh)->modelName, QStringLiteral("PX-DL5"));
}

void TestReplaceCommand::whatIsLostOnTheWayIsSaid()
{
    const NetworkRun run =
        replace(oneDevice("hubs", freshTexts(),
                          R"({"device": "10.54.1.21", "at": "discovery", "kind": "direct-only"})"),
                hub + u' ' + fresh);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY2(run.errors.contains(u"tesselctl: 10.54.1.21: answers only when asked directly"),
             qPrintable(run.errors));
}

void TestReplaceCommand::theMacAddressOfAnotherDeviceIsRefused()
{
    const NetworkRun run = replace(
        freshHub, otherHub + u' ' + fresh + QStringLiteral(" --mac 02:00:00:00:00:01"), noCable);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(
                 u"tesselctl: hall.tessel: device 10.54.1.21: an earlier device has the MAC "
                 "address 02:00:00:00:00:01\n"),
             qPrintable(run.errors));
    QVERIFY(!isWritten());
}

void TestReplaceCommand::formerFaultsDoNotStandInTheWay()
{
    QByteArray text = hallText;
    text.replace("\"mac\": \"02:00:00:00:00:01\", ", "").replace("02:00:00:00:00:05", "odd");
    writeHall(text);
    const NetworkRun run =
        replace(freshHub, hub + u' ' + fresh + QStringLiteral(" --mac 02:00:00:00:00:21"), noCable);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u": device 10.54.1.5: \"odd\" is no MAC address\n"),
             qPrintable(run.errors));
    QVERIFY(!run.errors.contains(u"its MAC address is missing"));
    QVERIFY(isWritten());
}

/// Rooms with cells in common, a picture of another hand, sets that name a device of another room.
void TestReplaceCommand::nothingElseChangesInAnOddHall()
{
    const HallJsonReading reading = readHallJson(hallText);
    DocumentData hall = reading.hall->data();
    hall.rooms.first().positionList.append({7, 0});
    hall.scenes.first().thumbnail.fill(Qt::red);
    hall.deviceSets.append({2, 1, speaker, true, QStringLiteral("R")});
    hall.presets.first().presetName = QStringLiteral("Talk");
    QCOMPARE(writeHallFile(path("hall.tessel"), hall), QString());
    const NetworkRun run = replace(
        freshHub, speaker + u' ' + fresh + QStringLiteral(" --mac 02:00:00:00:00:21"), noCable);
    QVERIFY2(isWritten(), qPrintable(run.errors));
    const HallReading after = written();
    QVERIFY(after.hall != nullptr);
    QByteArray expected = QJsonDocument(writeHallJson(hall)).toJson();
    expected.replace(speaker.toLatin1(), fresh.toLatin1())
        .replace("02:00:00:00:00:03", freshMac.toLatin1());
    QCOMPARE(QJsonDocument(writeHallJson(after.hall->data())).toJson(), expected);
}

void TestReplaceCommand::onlyHubsThatAreSentSomethingElseAreNamed()
{
    const QString mac = QStringLiteral(" --mac 02:00:00:00:00:21");
    const NetworkRun placed = replace(freshHub, speaker + u' ' + fresh + mac, noCable);
    QVERIFY2(placed.errors.contains(u" --hub 10.54.1.1\n"), qPrintable(placed.errors));
    const NetworkRun unplaced = replace(freshHub, spare + u' ' + fresh + mac, noCable);
    QVERIFY2(unplaced.errors.contains(u"tesselctl: nothing has to be installed for it"),
             qPrintable(unplaced.errors));
}

void TestReplaceCommand::theNextCommandCanBePasted()
{
    const QString output = QStringLiteral("'2026-11-22 10.30.00.tessel'");
    const NetworkRun run = runTool(
        freshHub, QStringLiteral("replace hall.tessel %1 %2 -o %3").arg(hub, fresh, output));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY2(run.errors.contains(
                 QStringLiteral("next: tesselctl install %1 --hub 10.54.1.21\n").arg(output)),
             qPrintable(run.errors));
}

void TestReplaceCommand::exchangedAddressesTakeThreeSteps_data()
{
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("third");
    QTest::addColumn<QString>("macOfFirstRoom");
    QTest::newRow("each stayed in its place")
        << otherHub + u' ' + hub << QStringLiteral("10.54.0.77 ") + otherHub
        << QStringLiteral("02:00:00:00:00:01");
    QTest::newRow("each place kept its address")
        << otherHub + u' ' + otherHub << QStringLiteral("10.54.0.77 ") + hub
        << QStringLiteral("02:00:00:00:00:02");
}

void TestReplaceCommand::exchangedAddressesTakeThreeSteps()
{
    QFETCH(const QString, second);
    QFETCH(const QString, third);
    QFETCH(const QString, macOfFirstRoom);
    const QByteArray exchanged = R"({"base": "10.54.1.1", "discovery": true,
        "discovery-listen": "10.54.255.255", "hubs": [
        {"address": "10.54.1.1", "mac": "02:00:00:00:00:02", "version": "2.1.0", "serial": "H2"},
        {"address": "10.54.1.2", "mac": "02:00:00:00:00:01", "version": "2.1.0", "serial": "H1"}]})";
    const QString step = QStringLiteral("tesselctl replace --wait 1 %1.tessel %2 -o %3.tessel && ");
    const NetworkRun run =
        runTool(exchanged, QStringLiteral("replace two.tessel %1 -o new.tessel").arg(third),
                step.arg(QStringLiteral("hall"),
                         hub + QStringLiteral(" 10.54.0.77 --mac 02:00:00:00:00:99"),
                         QStringLiteral("one")) +
                    step.arg(QStringLiteral("one"), second, QStringLiteral("two")));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const HallReading reading = written();
    QVERIFY(reading.hall != nullptr);
    for (const DeviceData& device : reading.hall->data().devices.all()) {
        if (device.modelName == u"PX-HB") {
            const bool isFirst = device.macAddress == u"02:00:00:00:00:01";
            QCOMPARE(device.ipAddress, isFirst ? otherHub : hub);
            QCOMPARE(device.roomNumber, device.macAddress == macOfFirstRoom ? 1 : 2);
        }
    }
}

void TestReplaceCommand::wrongUsageIsOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("line");
    const QString file = path("hall.tessel");
    const QString output = path("new.tessel");
    const auto row = [&file](const char* name, const QStringList& arguments, const QString& line) {
        QTest::newRow(name) << QStringList{QStringLiteral("replace"), file} + arguments
                            << QStringLiteral("tesselctl: %1\n").arg(line);
    };
    const QString o = QStringLiteral("-o");
    row("an old device that is none", {fresh, spare, o, output},
        file + QStringLiteral(": 10.54.1.21 is no device of this hall"));
    row("another device of the hall", {hub, otherHub, o, output},
        file + QStringLiteral(": 10.54.1.2 is another device of this hall; two that exchanged "
                              "their addresses take three steps, see tesselctl replace --help"));
    row("no address", {hub, QStringLiteral("hub"), o, output},
        QStringLiteral("replace: NEW is no IPv4 address: hub"));
    row("an address of all", {hub, QStringLiteral("255.255.255.255"), o, output},
        QStringLiteral("replace: NEW is no address of one device: 255.255.255.255"));
    row("no MAC address",
        {hub, fresh, o, output, QStringLiteral("--mac"), QStringLiteral("02-00-00-00-00-21")},
        QStringLiteral("replace: --mac is no MAC address such as 00:A0:DE:10:00:01: "
                       "02-00-00-00-00-21"));
    row("no name", {hub, fresh, o, output, QStringLiteral("--label"), QStringLiteral("Stage 2")},
        QStringLiteral("replace: --label is no name for a device, 1 to 64 letters, digits and "
                       "dashes: Stage 2"));
    row("the input", {hub, fresh, o, file},
        file + QStringLiteral(": this is the file that is read; choose another output"));
    row("another ending", {hub, fresh, o, path("new.txt")},
        path("new.txt") +
            QStringLiteral(": its name does not end in .tessel, and the wizard could not open it"));
}

void TestReplaceCommand::wrongUsageIsOneLine()
{
    QFETCH(const QStringList, arguments);
    const ToolRun run = runBuiltTool(arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, QString());
    QTEST(run.errors, "line");
    QVERIFY(!isWritten());
}

TESSEL_TEST_MAIN(TestReplaceCommand)
#include "tst_replacecommand.moc"
