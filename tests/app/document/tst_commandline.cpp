#include "commandline.h"
#include "testcase.h"

#include <QTest>

class TestCommandLine : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void interfaceIndex_data();
    void interfaceIndex();
    void malformedDeviceIsIgnored_data();
    void malformedDeviceIsIgnored();
    void fiveFieldsAreADevice();
    void prefixIsCaseInsensitive();
    void quotesGoFromModelLabelAndVersionOnly();
    void searchTypeAndPasswordFollow();
    void fieldsBeyondTheSeventhAreIgnored();
    void emptyFieldsAreKept();
    void addressMayHoldColons();
    void lastInterfaceCounts();
    void devicesKeepTheirOrder();
    void ofDevicesOfOneAddressTheFirstAcceptedOneCounts();
    void unknownArgumentsAreIgnored();
    void theFirstConfigurationFileIsOpened_data();
    void theFirstConfigurationFileIsOpened();
    void aSecondConfigurationFileIsToldByItsName();
    void theLogIsTheArgumentBehindItsOption_data();
    void theLogIsTheArgumentBehindItsOption();
    void ignoredArgumentsAreShownWithoutTheirValues_data();
    void ignoredArgumentsAreShownWithoutTheirValues();
    void noPieceOfAPasswordIsShown_data();
    void noPieceOfAPasswordIsShown();
};

void TestCommandLine::interfaceIndex_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<bool>("given");
    QTest::addColumn<int>("index");
    const auto row = [](const char* argument, bool given, int index) {
        QTest::newRow(argument) << QString::fromLatin1(argument) << given << index;
    };
    row("-N:3", true, 3);
    row("-n:3", true, 3);
    row("-N:0", true, 0);
    row("-N:-5", true, -5);
    row("-N:2147483647", true, 2147483647);
    row("-N:-1", false, 0);
    row("-N:", false, 0);
    row("-N:x", false, 0);
    row("-N:3x", false, 0);
    row("-N:0x10", false, 0);
    row("-N:1.5", false, 0);
    row("-N:2147483648", false, 0);
    row("-N:99999999999999999999", false, 0);
    row("-N:1:2", false, 0);
    row("-N:1:", false, 0);
    row("-N::1", false, 0);
    row("-N", false, 0);
    row("-N3", false, 0);
    row("-NN:3", false, 0);
    row("--N:3", false, 0);
    row("N:3", false, 0);
    row(" -N:3", false, 0);
    row(":3", false, 0);
    row(":", false, 0);
    row("", false, 0);
}

void TestCommandLine::interfaceIndex()
{
    QFETCH(const QString, argument);
    QFETCH(const bool, given);
    QFETCH(const int, index);
    const std::optional<int> read = nicIndexFromArgument(argument);
    QCOMPARE(read.has_value(), given);
    QCOMPARE(read.value_or(0), index);
}

void TestCommandLine::malformedDeviceIsIgnored_data()
{
    QTest::addColumn<QString>("argument");
    const auto row = [](const char* name, const char* argument) {
        QTest::newRow(name) << QString::fromLatin1(argument);
    };
    row("a MAC of zeros", "-D:\"PX-HB\"/Room-A/2.1.0/192.168.0.10/00:00:00:00:00:00");
    row("four fields", "-D:PX-HB/Room-A/2.1.0/192.168.0.10");
    row("no fields", "-D:");
    row("no colon", "-D");
    row("other prefix", "-DD:PX-HB/Room-A/2.1.0/192.168.0.10/00:a0:de:00:00:01");
    row("prefix in the middle", "x-D:PX-HB/Room-A/2.1.0/192.168.0.10/00:a0:de:00:00:01");
    row("other separator", "-D:PX-HB,Room-A,2.1.0,192.168.0.10,00:a0:de:00:00:01");
    row("unknown model", "-D:XY-1/Room-A/2.1.0/192.168.0.10/00:a0:de:00:00:01");
    row("old firmware", "-D:PX-HB/Room-A/1.9.9/192.168.0.10/00:a0:de:00:00:01");
    row("no model", "-D:/Room-A/2.1.0/192.168.0.10/00:a0:de:00:00:01");
    row("a model of quotes only", "-D:\"\"/Room-A/2.1.0/192.168.0.10/00:a0:de:00:00:01");
    row("no version", "-D:PX-HB/Room-A//192.168.0.10/00:a0:de:00:00:01");
    row("only separators", "-D://////////");
    row("empty", "");
}

void TestCommandLine::malformedDeviceIsIgnored()
{
    QFETCH(const QString, argument);
    QVERIFY(!deviceFromArgument(argument));
}

void TestCommandLine::fiveFieldsAreADevice()
{
    const auto device = deviceFromArgument(
        QStringLiteral("-D:\"PX-HB\"/Room-A/2.1.0/192.168.0.10/00:a0:de:00:00:01"));
    QVERIFY(device);
    QCOMPARE(device->modelName, QStringLiteral("PX-HB"));
    QCOMPARE(device->label, QStringLiteral("Room-A"));
    QCOMPARE(device->version, QStringLiteral("2.1.0"));
    QCOMPARE(device->ipAddress, QStringLiteral("192.168.0.10"));
    QCOMPARE(device->macAddress, QStringLiteral("00:a0:de:00:00:01"));
    QVERIFY(device->searchType.isEmpty());
    QVERIFY(device->password.isEmpty());
    QCOMPARE(device->roomNumber, 0);
    QVERIFY(!device->labelModified);
}

void TestCommandLine::prefixIsCaseInsensitive()
{
    QVERIFY(deviceFromArgument(QStringLiteral("-d:DSK4M/A/2.0/10.0.0.1/00:a0:de:00:00:01")));
}

void TestCommandLine::quotesGoFromModelLabelAndVersionOnly()
{
    const auto device = deviceFromArgument(
        QStringLiteral("-D:\"PX\"-HB\"/\"My \"\"Hub\"/\"2\".1/\"10.0.0.1\"/\"a\"/\"HTTP\"/\"pw\""));
    QVERIFY(device);
    QCOMPARE(device->modelName, QStringLiteral("PX-HB"));
    QCOMPARE(device->label, QStringLiteral("My Hub"));
    QCOMPARE(device->version, QStringLiteral("2.1"));
    QCOMPARE(device->ipAddress, QStringLiteral("\"10.0.0.1\""));
    QCOMPARE(device->macAddress, QStringLiteral("\"a\""));
    QCOMPARE(device->searchType, QStringLiteral("\"HTTP\""));
    QCOMPARE(device->password, QStringLiteral("\"pw\""));
}

void TestCommandLine::searchTypeAndPasswordFollow()
{
    const auto device = deviceFromArgument(
        QStringLiteral("-D:PX-HB/A/2.1.0/10.0.0.1/00:a0:de:00:00:01/HTTP/s:3 cret"));
    QVERIFY(device);
    QCOMPARE(device->searchType, QStringLiteral("HTTP"));
    QCOMPARE(device->password, QStringLiteral("s:3 cret"));
}

void TestCommandLine::fieldsBeyondTheSeventhAreIgnored()
{
    const auto device = deviceFromArgument(
        QStringLiteral("-D:PX-HB/A/2.1.0/10.0.0.1/00:a0:de:00:00:01/HTTP/pw/more/and more"));
    QVERIFY(device);
    QCOMPARE(device->password, QStringLiteral("pw"));
}

void TestCommandLine::emptyFieldsAreKept()
{
    const auto device = deviceFromArgument(QStringLiteral("-D:PX-HB//2.1.0//"));
    QVERIFY(device);
    QVERIFY(device->label.isEmpty());
    QVERIFY(device->ipAddress.isEmpty());
    QVERIFY(device->macAddress.isEmpty());
}

void TestCommandLine::addressMayHoldColons()
{
    const auto device =
        deviceFromArgument(QStringLiteral("-D:PX-HB/A: B/2.1.0/fe80::1/00:a0:de:00:00:01"));
    QVERIFY(device);
    QCOMPARE(device->label, QStringLiteral("A: B"));
    QCOMPARE(device->ipAddress, QStringLiteral("fe80::1"));
}

void TestCommandLine::lastInterfaceCounts()
{
    const auto index = [](const QStringList& arguments) {
        return readCommandLine(arguments).nicIndex;
    };
    QCOMPARE(index({}), 0);
    QCOMPARE(index({QStringLiteral("-N:2"), QStringLiteral("-N:4")}), 4);
    QCOMPARE(index({QStringLiteral("-N:2"), QStringLiteral("-N:-1")}), 2);
    QCOMPARE(index({QStringLiteral("-N:2"), QStringLiteral("-N:x")}), 2);
}

void TestCommandLine::devicesKeepTheirOrder()
{
    const CommandLine commandLine = readCommandLine(
        {QStringLiteral("-D:PX-HB/A/2.1.0/10.0.0.2/00:a0:de:00:00:02"),
         QStringLiteral("-D:PX-HB/B/1.0.0/10.0.0.3/00:a0:de:00:00:03"), QStringLiteral("-N:1"),
         QStringLiteral("-D:DSK4M/C/2.1.0/10.0.0.1/00:a0:de:00:00:01")});
    QCOMPARE(commandLine.nicIndex, 1);
    QCOMPARE(commandLine.devices.size(), 2);
    QCOMPARE(commandLine.devices.first().label, QStringLiteral("A"));
    QCOMPARE(commandLine.devices.last().label, QStringLiteral("C"));
}

void TestCommandLine::ofDevicesOfOneAddressTheFirstAcceptedOneCounts()
{
    const CommandLine commandLine =
        readCommandLine({QStringLiteral("-D:PX-HB/TooOld/1.0.0/10.0.0.2/00:a0:de:00:00:02"),
                         QStringLiteral("-D:PX-HB/A/2.1.0/10.0.0.2/00:a0:de:00:00:02/HTTP/secret"),
                         QStringLiteral("-D:PX-HB/B/2.1.0/10.0.0.3/00:a0:de:00:00:03"),
                         QStringLiteral("-D:PX-HB/C/2.2.0/10.0.0.2/00:a0:de:00:00:02"),
                         QStringLiteral("-D:DSK4M/D/2.1.0/10.0.0.3/00:a0:de:00:00:04")});
    QCOMPARE(commandLine.devices.size(), 2);
    QCOMPARE(commandLine.devices.first().label, QStringLiteral("A"));
    QCOMPARE(commandLine.devices.first().searchType, QStringLiteral("HTTP"));
    QCOMPARE(commandLine.devices.first().password, QStringLiteral("secret"));
    QCOMPARE(commandLine.devices.last().label, QStringLiteral("B"));
}

void TestCommandLine::unknownArgumentsAreIgnored()
{
    const CommandLine commandLine = readCommandLine(
        {QStringLiteral("/usr/bin/tessel"), QStringLiteral("--help"), QStringLiteral("-X:1"),
         QStringLiteral("PX-HB/A/2.1.0/10.0.0.2/00:a0:de:00:00:02"), QString()});
    QCOMPARE(commandLine.nicIndex, 0);
    QVERIFY(commandLine.devices.isEmpty());
}

void TestCommandLine::theFirstConfigurationFileIsOpened_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("path");
    const auto row = [](const char* name, const QStringList& arguments, const char* path) {
        QTest::newRow(name) << arguments << QString::fromLatin1(path);
    };
    const QString device = QStringLiteral("-D:PX-HB/A/2.1.0/10.0.0.1/00:a0:de:00:00:01");
    row("none", {}, "");
    row("alone", {QStringLiteral("hall.tessel")}, "hall.tessel");
    row("in a folder", {QStringLiteral("/home/a b/hall.tessel")}, "/home/a b/hall.tessel");
    row("in capitals", {QStringLiteral("HALL.TESSEL")}, "HALL.TESSEL");
    row("behind others", {QStringLiteral("-N:3"), device, QStringLiteral("hall.tessel")},
        "hall.tessel");
    row("of two", {QStringLiteral("a.tessel"), QStringLiteral("b.tessel")}, "a.tessel");
    row("an option", {QStringLiteral("--hall=x.tessel"), QStringLiteral("-x.tessel")}, "");
    row("another ending", {QStringLiteral("hall.tessel.bak"), QStringLiteral("tessel")}, "");
    row("a device of that label", {QStringLiteral("-D:PX-HB/a.tessel")}, "");
}

void TestCommandLine::theFirstConfigurationFileIsOpened()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, path);
    // The program's own name is none, whatever it ends in.
    QCOMPARE(configurationPath(QStringList{QStringLiteral("my.tessel")} + arguments), path);
    QVERIFY(path.isEmpty() || !ignoredArguments(QStringList{QString()} + arguments).contains(path));
}

void TestCommandLine::aSecondConfigurationFileIsToldByItsName()
{
    const QStringList arguments{QStringLiteral("tessel"), QStringLiteral("/halls/a.tessel"),
                                QStringLiteral("/halls/b.tessel"), QStringLiteral("stray")};
    QCOMPARE(ignoredArguments(arguments),
             QStringList({QStringLiteral("b.tessel"), QStringLiteral("stray")}));
}

void TestCommandLine::theLogIsTheArgumentBehindItsOption_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("log");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("ignored");
    const auto row = [](const char* arguments, const char* log, const char* file,
                        const QStringList& ignored) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(log)
                                 << QString::fromLatin1(file) << ignored;
    };
    row("-N:1", "", "", {});
    row("--log a.jsonl", "a.jsonl", "", {});
    row("--log a.jsonl hall.tessel", "a.jsonl", "hall.tessel", {});
    row("hall.tessel --log /logs/b.jsonl", "/logs/b.jsonl", "hall.tessel", {});
    row("--log hall.tessel", "", "hall.tessel", {QStringLiteral("--log")});
    row("--log HALL.TESSEL --log a.jsonl", "a.jsonl", "HALL.TESSEL", {QStringLiteral("--log")});
    row("--log a.jsonl --log hall.tessel", "a.jsonl", "hall.tessel", {QStringLiteral("--log")});
    row("--log -N:1", "", "", {QStringLiteral("--log")});
    row("--log -D:PX-HB/A/2.1.0/10.0.0.1/00:a0:de:00:00:01/HTTP/secret", "", "",
        {QStringLiteral("--log")});
    row("--log a.jsonl --log b.jsonl", "b.jsonl", "", {});
    row("--log /logs/a stray", "/logs/a", "", {QStringLiteral("stray")});
    row("--log", "", "", {QStringLiteral("--log")});
    row("--log=a.jsonl", "", "", {QStringLiteral("--log=...")});
}

void TestCommandLine::theLogIsTheArgumentBehindItsOption()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, log);
    QFETCH(const QString, file);
    QFETCH(const QStringList, ignored);
    const QStringList all = QStringList{QStringLiteral("tessel")} + arguments.split(u' ');
    QCOMPARE(logPath(all), log);
    QCOMPARE(configurationPath(all), file);
    QCOMPARE(ignoredArguments(all), ignored);
}

void TestCommandLine::ignoredArgumentsAreShownWithoutTheirValues_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QStringList>("shown");
    const auto row = [](const char* argument, const QStringList& shown) {
        QTest::newRow(argument) << QString::fromUtf8(argument) << shown;
    };
    row("-N:3", {});
    row("-n:-1", {});
    row("-D:PX-HB/A/2.1.0/10.0.0.1/00:a0:de:00:00:01", {});
    row("--bogus", {QStringLiteral("--bogus")});
    row("stray", {QStringLiteral("stray")});
    row("--part=2", {QStringLiteral("--part=...")});
    row("-X:1", {QStringLiteral("-X:...")});
    row("-N:x", {QStringLiteral("-N:...")});
    row("-D:", {QStringLiteral("-D:...")});
    row("-D:PX-HB/A/1.0.0/10.0.0.1/00:a0:de:00:00:01", {QStringLiteral("-D:...")});
    row("hall.json/", {QStringLiteral("hall.json/...")});
    row("two\nlines\x1b[31m\xc3\xa9", {QStringLiteral("two?lines?[31m?")});
    row("a-word-of-far-more-than-any-forty-characters",
        {QStringLiteral("a-word-of-far-more-than-any-forty-charac...")});
    row("", {QString()});
}

void TestCommandLine::ignoredArgumentsAreShownWithoutTheirValues()
{
    QFETCH(const QString, argument);
    QFETCH(const QStringList, shown);
    QCOMPARE(ignoredArguments({QStringLiteral("/usr/bin/tessel"), argument}), shown);
}

void TestCommandLine::noPieceOfAPasswordIsShown_data()
{
    QTest::addColumn<QString>("arguments");
    const auto row = [](const char* name, const char* arguments) {
        QTest::newRow(name) << QString::fromLatin1(arguments);
    };
    // Separated by spaces, as a shell does where quotes are missing.
    row("a refused device", "-D:XY-1/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/secret");
    row("no colon", "-DPX-HB/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/secret");
    row("two hyphens", "--D:PX-HB/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/secret");
    row("an equals sign", "-D=PX-HB/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/secret");
    row("other separators", "-D:PX-HB,A,2.1,10.0.0.1,00:a0:de:00:00:01,HTTP,secret");
    row("a prefix apart", "-D: PX-HB/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/secret");
    row("a label with a space", "-D:PX-HB/A B/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/secret");
    row("a model with a space", "-D:PX HB/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/secret");
    row("a password with a space", "-D:PX-HB/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/top secret");
    row("one like a second file",
        "a.tessel -D:PX-HB/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/top secret.tessel");
    row("one with a hyphen", "-D:PX-HB/A/2.1/10.0.0.1/00:a0:de:00:00:01/HTTP/top -secret");
}

void TestCommandLine::noPieceOfAPasswordIsShown()
{
    QFETCH(const QString, arguments);
    const QStringList before{QStringLiteral("tessel"), QStringLiteral("-N:1")};
    const QStringList ignored = ignoredArguments(before + arguments.split(u' '));
    QVERIFY(!ignored.isEmpty());
    QVERIFY2(!ignored.join(u' ').contains(u"secret"), qPrintable(ignored.join(u' ')));
}

TESSEL_TEST_MAIN(TestCommandLine)
#include "tst_commandline.moc"
