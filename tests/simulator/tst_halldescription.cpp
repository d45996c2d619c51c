#include "addresssequence.h"
#include "halldescription.h"
#include "hallhelp.h"
#include "halloptions.h"
#include "hallreader.h"
#include "hallreport.h"
#include "testcase.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

/// Halls as data: made from counts, read from files, given on the command line.
class TestHallDescription : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addressesPassOverNetworkAndBroadcast();
    void countsMakeAHallOfEveryModel();
    void impossibleCountsMakeNoHall_data();
    void impossibleCountsMakeNoHall();
    void commandLineOfTheWizard();
    void labelsAreQuotedForTheShell();
    void searchComesFirstWhereDevicesAnswerIt();
    void secondAddressesFollowTheDevices();
    void fileFillsInWhatItLeavesOut();
    void fileDescribesEveryDetail();
    void wrongFilesAreExplained_data();
    void wrongFilesAreExplained();
    void missingFileIsExplained();
    void optionsByDefault();
    void optionsChangeTheHall();
    void optionsOnTopOfAFile();
    void wrongOptionsAreExplained_data();
    void wrongOptionsAreExplained();
    void helpIsGivenInsteadOfAHall_data();
    void helpIsGivenInsteadOfAHall();
    void versionIsTheProjects();
    void helpTellsEverythingThatCanBeGiven();

private:
    static HallOptionsReading read(const QStringList& arguments)
    {
        return readHallOptions(QStringList{QStringLiteral("tessel-hall")} + arguments);
    }
};

void TestHallDescription::addressesPassOverNetworkAndBroadcast()
{
    AddressSequence addresses(QStringLiteral("10.0.0.254"));
    QCOMPARE(addresses.next(), QStringLiteral("10.0.0.254"));
    QCOMPARE(addresses.next(), QStringLiteral("10.0.1.1"));
    QCOMPARE(AddressSequence(QStringLiteral("10.0.0.0")).next(), QStringLiteral("10.0.0.1"));
    QCOMPARE(AddressSequence(QStringLiteral("nowhere")).next(), QString());
}

void TestHallDescription::countsMakeAHallOfEveryModel()
{
    const std::optional<HallDescription> hall = HallDescription::byCounts(4, 20);
    QVERIFY(hall);
    QCOMPARE(hall->hubs.size(), 4);
    QCOMPARE(hall->peripherals.size(), 20);
    QCOMPARE(hall->hubs.front().address, QStringLiteral("127.0.1.1"));
    QCOMPARE(hall->hubs.at(3).storageName(), QStringLiteral("hub04"));
    QCOMPARE(hall->peripherals.front().address, QStringLiteral("127.0.1.5"));
    QSet<QString> models;
    QSet<QString> ownTexts;
    for (const DeviceDescription& device : hall->peripherals) {
        models.insert(device.model);
        ownTexts += {device.address, device.mac, device.label, device.serial};
    }
    QCOMPARE(models.size(), 6);
    QCOMPARE(ownTexts.size(), 20 * 4);
}

void TestHallDescription::impossibleCountsMakeNoHall_data()
{
    QTest::addColumn<int>("hubs");
    QTest::addColumn<int>("peripherals");
    QTest::addColumn<QString>("base");
    const QString base = QStringLiteral("127.0.1.1");
    QTest::newRow("no devices") << 0 << 0 << base;
    QTest::newRow("less than none") << -1 << 5 << base;
    QTest::newRow("too many") << 1000 << 1001 << base;
    QTest::newRow("no address") << 1 << 1 << QStringLiteral("hall");
    QTest::newRow("another kind of address") << 1 << 1 << QStringLiteral("::1");
}

void TestHallDescription::impossibleCountsMakeNoHall()
{
    QFETCH(const int, hubs);
    QFETCH(const int, peripherals);
    QFETCH(const QString, base);
    QVERIFY(!HallDescription::byCounts(hubs, peripherals, base));
}

void TestHallDescription::commandLineOfTheWizard()
{
    const HallDescription hall = *HallDescription::byCounts(1, 1);
    QCOMPARE(
        hall.wizardArguments(),
        (QStringList{QStringLiteral("-N:1"),
                     QStringLiteral("-D:PX-HB/Hub-1/2.1.0/127.0.1.1/02:1A:00:00:00:01"),
                     QStringLiteral("-D:PX-DL8/Microphone-1/2.1.0/127.0.1.2/02:1A:00:10:00:01")}));
    QCOMPARE(hall.wizardCommandLine(),
             QStringLiteral("tessel -N:1 \"-D:PX-HB/Hub-1/2.1.0/127.0.1.1/02:1A:00:00:00:01\" "
                            "\"-D:PX-DL8/Microphone-1/2.1.0/127.0.1.2/02:1A:00:10:00:01\""));
}

void TestHallDescription::labelsAreQuotedForTheShell()
{
    HallDescription hall = *HallDescription::byCounts(1, 0);
    hall.hubs.front().label = QStringLiteral("a $b `c` \\d \"e\"");
    QVERIFY(hall.wizardCommandLine().contains(QStringLiteral("/a \\$b \\`c\\` \\\\d \\\"e\\\"/")));
    // An interactive shell looks for "!" between double quotes, where a backslash would stay.
    hall.hubs.front().label = QStringLiteral("f!");
    QVERIFY(hall.wizardCommandLine().contains(QStringLiteral("/f\"'!'\"/")));
}

void TestHallDescription::searchComesFirstWhereDevicesAnswerIt()
{
    HallDescription hall = *HallDescription::byCounts(1, 0);
    const QString handedOver = QStringLiteral("  ") + hall.wizardCommandLine() + QLatin1Char('\n');
    QCOMPARE(howToStart(hall), QStringLiteral("Start the wizard with\n\n") + handedOver);
    hall.discovery = true;
    QCOMPARE(howToStart(hall),
             QStringLiteral("Start the wizard and let it search for the devices:\n\n  tessel\n\n"
                            "Or hand the devices over to it, without a search:\n\n") +
                 handedOver);
}

void TestHallDescription::secondAddressesFollowTheDevices()
{
    HallDescription hall = *HallDescription::byCounts(2, 1);
    hall.addSecondAddresses(1);
    QCOMPARE(hall.hubs.at(0).secondAddress, QStringLiteral("127.0.1.4"));
    QVERIFY(hall.hubs.at(0).secondMac != hall.hubs.at(0).mac);
    QVERIFY(hall.hubs.at(1).secondAddress.isEmpty());
    QCOMPARE(hall.addressCount(), 4);
    QVERIFY(!hall.problem());
}

void TestHallDescription::fileFillsInWhatItLeavesOut()
{
    const HallReading reading = readHall(R"({"hubs": 2, "peripherals": [{}, {"model": "PX-X"}]})");
    QCOMPARE(reading.error, QString());
    const HallDescription counted = *HallDescription::byCounts(2, 2);
    QCOMPARE(reading.hall->hubs.at(1).mac, counted.hubs.at(1).mac);
    QCOMPARE(reading.hall->peripherals.at(0).label, counted.peripherals.at(0).label);
    QCOMPARE(reading.hall->peripherals.at(1).address, counted.peripherals.at(1).address);
    QCOMPARE(reading.hall->peripherals.at(1).label, QStringLiteral("PX-X-2"));
    QVERIFY(!reading.hall->discovery);
    QVERIFY(!reading.hall->hubs.front().password);
}

void TestHallDescription::fileDescribesEveryDetail()
{
    const HallReading reading = readHall(R"({"base": "10.0.0.1", "password": "abcd",
        "hubs": [{"model": "PX-HB2", "label": "Main", "version": "3.0", "address": "10.0.0.9",
             "mac": "02:00:00:00:00:09", "serial": "S", "device-id": "D", "password": "",
             "export-polls": 7, "export-file": "main.hub.xml",
             "second-address": "10.0.0.10", "second-mac": "02:00:00:00:00:0A"}, {}],
        "discovery": true, "discovery-listen": "10.0.0.255",
        "faults": [{"device": "10.0.0.2", "at": 9, "kind": "slow", "value": 5}]})");
    QCOMPARE(reading.error, QString());
    const HubDescription& main = reading.hall->hubs.front();
    QCOMPARE(reading.hall->wizardArguments().at(1),
             QStringLiteral("-D:PX-HB2/Main/3.0/10.0.0.9/02:00:00:00:00:09"));
    QCOMPARE(main.password, std::optional(QString()));
    QCOMPARE(main.exportPolls, 7);
    QCOMPARE(main.storageName(), QStringLiteral("main"));
    QCOMPARE(main.secondMac, QStringLiteral("02:00:00:00:00:0A"));
    QCOMPARE(reading.hall->hubs.at(1).password, std::optional(QStringLiteral("abcd")));
    QCOMPARE(reading.hall->hubs.at(1).address, QStringLiteral("10.0.0.2"));
    QCOMPARE(reading.hall->faults.size(), 1);
    QVERIFY(reading.hall->faults.front().exchange == Exchange::Recall);
    QVERIFY(reading.hall->discovery);
    QCOMPARE(reading.hall->discoveryListen, QStringLiteral("10.0.0.255"));
}

void TestHallDescription::wrongFilesAreExplained_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* json, const char* error) {
        QTest::newRow(json) << QByteArray(json) << QString::fromUtf8(error);
    };
    const char* noStorageName =
        "hub 1: \"export-file\" does not begin with a storage name: 1 to 64 letters, digits, "
        "\"-\" or \"_\" before its first dot";
    const char* brokenExport = "hub 1: \"export-file\" holds a double quote or a line's end";
    row("", "no JSON object: illegal value at byte 0");
    row("[]", "no JSON object: no error occurred at byte 0");
    row("{}", "the hall has no devices");
    row(R"({"hubs": -1})", "hall: \"hubs\" is no whole number from 0 to 2000");
    row(R"({"hubs": 1.5})", "hall: \"hubs\" is no whole number from 0 to 2000");
    row(R"({"hubs": "4"})", "hall: \"hubs\" is no whole number from 0 to 2000");
    row(R"({"hubs": [4]})", "hall: \"hubs\" holds something that is no object");
    row(R"({"hubs": 1, "hub": 2})", "hall: \"hub\" means nothing here");
    row(R"({"hubs": [{"adress": "x"}]})", "hub 1: \"adress\" means nothing here");
    row(R"({"hubs": [{"label": 5}]})", "hub 1: \"label\" is no text");
    row(R"({"hubs": [{"mac": "02-00"}]})",
        "hub 1: \"mac\" is no MAC address such as 02:1A:00:00:00:01");
    row(R"({"hubs": [{"second-address": "10.0.0.1"}]})", "hub 1: \"second-mac\" is missing");
    row(R"({"peripherals": [{"address": "10.0.0.256"}]})", "\"10.0.0.256\" is no IPv4 address");
    row(R"({"peripherals": [{"password": "x"}]})", "peripheral 1: \"password\" means nothing here");
    row(R"({"peripherals": [{}, {"address": "127.0.1.1"}]})",
        "the address 127.0.1.1 is given twice");
    row(R"({"hubs": [{"label": "A/B"}]})",
        "hub 1: \"label\" holds a slash, a double quote or a control character");
    row(R"({"hubs": [{}, {"version": "2\"1"}]})",
        "hub 2: \"version\" holds a slash, a double quote or a control character");
    row(R"({"peripherals": [{"model": "PX\nX"}]})",
        "peripheral 1: \"model\" holds a slash, a double quote or a control character");
    row(R"({"hubs": [{"mac": "02:1A:00:00:00:01\n"}]})",
        "hub 1: \"mac\" is no MAC address such as 02:1A:00:00:00:01");
    row(R"({"hubs": [{"export-file": ""}]})", noStorageName);
    row(R"({"hubs": [{"export-file": ".xml"}]})", noStorageName);
    row(R"({"hubs": [{"export-file": "hub 1.xml"}]})", noStorageName);
    row(R"({"hubs": [{"export-file": "hub1\n.xml"}]})", noStorageName);
    row(R"({"hubs": [{"export-file": "hub1.x\"ml"}]})", brokenExport);
    row(R"({"hubs": [{"export-file": "hub1.xml\r"}]})", brokenExport);
    row(R"({"hubs": [{"export-file": "hub1.xml\n"}]})", brokenExport);
    row(R"({"hubs": 1, "discovery": 1})", "hall: \"discovery\" is neither true nor false");
    row(R"({"hubs": 1, "discovery-listen": "all"})", "\"all\" is no address to hear queries at");
    row(R"({"hubs": 1, "faults": 1})", "hall: \"faults\" is no list");
    row(R"({"hubs": 1, "faults": [{}]})", "fault 1: there is no kind of fault \"\"");
    row(R"({"hubs": 1, "faults": [{"kind": "silence", "times": 0}]})",
        "fault 1: \"times\" is no whole number from 1 to 2147483647");
    row(R"({"hubs": 1, "faults": [{"kind": "refuse", "skip": 1}]})",
        "fault 1: \"refuse\" lasts, so that nothing of it can be counted or skipped");
    row(R"({"hubs": 1, "faults": [{"device": "10.0.0.1", "kind": "silence"}]})",
        "a fault names 10.0.0.1, where there is no device");
}

void TestHallDescription::wrongFilesAreExplained()
{
    QFETCH(const QByteArray, json);
    const HallReading reading = readHall(json);
    QVERIFY(!reading.hall);
    QTEST(reading.error, "error");
}

void TestHallDescription::missingFileIsExplained()
{
    const HallReading reading = readHallFile(QStringLiteral("/nowhere/hall.json"));
    QVERIFY(!reading.hall);
    QVERIFY(reading.error.startsWith(QStringLiteral("cannot read /nowhere/hall.json: ")));
}

void TestHallDescription::optionsByDefault()
{
    const HallOptionsReading reading = read({});
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.options->hall.hubs.size(), 4);
    QCOMPARE(reading.options->hall.peripherals.size(), 20);
    QCOMPARE(reading.options->storeFolder, QString());
    QVERIFY(!reading.options->hall.discovery);
}

void TestHallDescription::optionsChangeTheHall()
{
    const HallOptionsReading reading =
        read(QStringLiteral("--hubs 2 --peripherals 0 --base 10.0.0.1 --second-addresses 1 "
                            "--password abcd --export-polls 0 --discovery-listen 10.0.0.255 "
                            "--store out --fault *,recall,silence --fault *,*,no-reply*1")
                 .split(u' '));
    QCOMPARE(reading.error, QString());
    const HallDescription& hall = reading.options->hall;
    QCOMPARE(hall.addressCount(), 3);
    QCOMPARE(hall.hubs.at(1).address, QStringLiteral("10.0.0.2"));
    QCOMPARE(hall.hubs.at(1).password, std::optional(QStringLiteral("abcd")));
    QCOMPARE(hall.hubs.at(1).exportPolls, 0);
    QVERIFY(hall.discovery);
    QCOMPARE(hall.discoveryListen, QStringLiteral("10.0.0.255"));
    QCOMPARE(hall.faults.size(), 2);
    QCOMPARE(reading.options->storeFolder, QStringLiteral("out"));
}

void TestHallDescription::optionsOnTopOfAFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("hall.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"hubs": 1})");
    file.close();
    const HallOptionsReading reading = read({path, QStringLiteral("--discovery")});
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.options->hall.addressCount(), 1);
    QVERIFY(reading.options->hall.discovery);
    QCOMPARE(reading.options->hall.hubs.front().exportPolls, 2);
}

void TestHallDescription::wrongOptionsAreExplained_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* options, const char* error) {
        QTest::newRow(options) << QString::fromLatin1(options) << QString::fromLatin1(error);
    };
    row("--nonsense", "Unknown option 'nonsense'.");
    row("--hubs x", "--hubs takes a number from 0 to 2000");
    row("--hubs -1", "--hubs takes a number from 0 to 2000");
    row("--second-addresses 5", "--second-addresses takes a number from 0 to 4");
    row("--export-polls x", "--export-polls takes a number from 0 to 1000");
    row("--base hall", "no hall of 1 to 2000 devices from the address \"hall\" on");
    row("--fault silence", "fault \"silence\": expected DEVICE,EXCHANGE,KIND");
    row("--fault 10.0.0.1,*,silence", "a fault names 10.0.0.1, where there is no device");
    row("a.json b.json", "give one description file or counts, not both");
    row("a.json --hubs 4", "give one description file or counts, not both");
}

void TestHallDescription::wrongOptionsAreExplained()
{
    QFETCH(const QString, options);
    const HallOptionsReading reading = read(options.split(u' '));
    QVERIFY(!reading.options);
    QTEST(reading.error, "error");
}

void TestHallDescription::helpIsGivenInsteadOfAHall_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("short") << QStringLiteral("-h");
    QTest::newRow("long") << QStringLiteral("--help");
    QTest::newRow("all") << QStringLiteral("--help-all");
}

void TestHallDescription::helpIsGivenInsteadOfAHall()
{
    QFETCH(const QString, option);
    const HallOptionsReading reading = read({option});
    QVERIFY(!reading.options);
    QCOMPARE(reading.error, QString());
    QVERIFY(reading.help.contains(QStringLiteral("--peripherals <number>")));
}

void TestHallDescription::versionIsTheProjects()
{
    const HallOptionsReading reading = read({QStringLiteral("--version")});
    QVERIFY(!reading.options);
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.help, QStringLiteral("tessel-hall " TESSEL_PROJECT_VERSION "\n"));
}

void TestHallDescription::helpTellsEverythingThatCanBeGiven()
{
    const QString help = read({QStringLiteral("--help")}).help.simplified();
    QStringList expected{QStringLiteral("Default: 20."),   QStringLiteral("Default: 127.0.1.1."),
                         QStringLiteral("Exit codes: 0 "), QStringLiteral(" 3 "),
                         QStringLiteral("status,NUMBER"),  QStringLiteral("pieces[,OFFSETS]"),
                         QStringLiteral("greeting,TEXT")};
    for (int value = 0; value <= static_cast<int>(Exchange::Discovery); ++value) {
        expected.append(QLatin1Char(' ') + exchangeName(static_cast<Exchange>(value)));
    }
    for (int value = 0; value <= static_cast<int>(FaultKind::RawDatagram); ++value) {
        expected.append(QLatin1Char(' ') + faultKindName(static_cast<FaultKind>(value)));
    }
    for (const QString& text : expected) {
        QVERIFY2(help.contains(text), qPrintable(text));
    }
    for (const QString& line : faultHelp().split(QLatin1Char('\n'))) {
        QVERIFY2(line.size() <= 80, qPrintable(line));
    }
}

TESSEL_TEST_MAIN(TestHallDescription)
#include "tst_halldescription.moc"
