#include "foundjson.h"
#include "testcase.h"

#include <QTest>

/// Reading what a search has found.
class TestFoundJson : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSearchIsReadWithItsDayAndItsDevices();
    void whyADeviceIsRefusedIsRead();
    void keysOfLaterVersionsDoNoHarm();
    void aSearchMayHaveNoDay();
    void whatIsNoSearchIsToldWithItsPlace_data();
    void whatIsNoSearchIsToldWithItsPlace();
};

void TestFoundJson::aSearchIsReadWithItsDayAndItsDevices()
{
    const FoundReading reading = readFoundJson(R"({"begun": "2026-11-21T23:59:00", "devices": [
            {"address": "127.0.1.1", "mac": "02:1A:FF:00:00:01", "firmware": "2.1.0",
             "serial": "Y1"},
            {"address": "127.0.1.2"}]})");
    QCOMPARE(reading.fault, QString());
    QCOMPARE(reading.date, QDate(2026, 11, 21));
    QCOMPARE(reading.devices.size(), 2);
    QCOMPARE(reading.devices.first().macAddress, QStringLiteral("02:1A:FF:00:00:01"));
    QCOMPARE(reading.devices.first().firmware, QStringLiteral("2.1.0"));
    QCOMPARE(reading.devices.first().serialNumber, QStringLiteral("Y1"));
    QCOMPARE(reading.devices.last().firmware, QString());
}

void TestFoundJson::whyADeviceIsRefusedIsRead()
{
    const FoundReading reading = readFoundJson(R"({"devices": [
            {"address": "127.0.1.1", "verdict": "taken", "reason": "taken"},
            {"address": "127.0.1.2", "verdict": "second-port", "reason": "second port of ..."},
            {"address": "127.0.1.3", "verdict": "unknown-model", "reason": "unknown model"},
            {"address": "127.0.1.4", "verdict": "other"},
            {"address": "127.0.1.5"}]})");
    QCOMPARE(reading.fault, QString());
    QStringList refusals;
    for (const FoundDevice& device : reading.devices) {
        refusals.append(device.refusal);
    }
    QCOMPARE(refusals,
             QStringList({{}, {}, QStringLiteral("unknown model"), QStringLiteral("other"), {}}));
}

void TestFoundJson::keysOfLaterVersionsDoNoHarm()
{
    const FoundReading reading =
        readFoundJson(R"({"more": 1, "devices": [{"address": "127.0.1.1", "more": [null]}]})");
    QCOMPARE(reading.fault, QString());
    QCOMPARE(reading.devices.size(), 1);
}

void TestFoundJson::aSearchMayHaveNoDay()
{
    const FoundReading reading = readFoundJson(R"({"devices": []})");
    QCOMPARE(reading.fault, QString());
    QVERIFY(!reading.date.isValid());
}

void TestFoundJson::whatIsNoSearchIsToldWithItsPlace_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* name, const char* text, const char* fault) {
        QTest::newRow(name) << QByteArray(text) << QString::fromLatin1(fault);
    };
    row("no JSON", "{\n\"devices\": [}", "line 2, column 14: object is missing after a comma");
    row("a list", "[]", "line 1, column 1: this is no object");
    row("nothing", "", "line 1, column 1: this is no object");
    row("another file", "{\"hubs\": []}", ".devices: this is missing");
    row("no list", "{\"devices\": {}}", ".devices: this is no list");
    row("no device", "{\"devices\": [7]}", ".devices[0]: this is no object");
    row("no address", "{\"devices\": [{}]}", ".devices[0].address: this is missing");
    row("an empty address", "{\"devices\": [{\"address\": \"\"}]}",
        ".devices[0].address: this is missing");
    row("a MAC that is a number",
        "{\"devices\": [{\"address\": \"1.1.1.1\"}, {\"address\": \"1.1.1.2\", \"mac\": 1}]}",
        ".devices[1].mac: this is no text");
    row("firmware that is a number",
        "{\"devices\": [{\"address\": \"1.1.1.1\", \"firmware\": 2.1}]}",
        ".devices[0].firmware: this is no text");
    row("a serial number that is a list",
        "{\"devices\": [{\"address\": \"1.1.1.1\", \"serial\": []}]}",
        ".devices[0].serial: this is no text");
    row("a verdict that is a number", "{\"devices\": [{\"address\": \"1.1.1.1\", \"verdict\": 7}]}",
        ".devices[0].verdict: this is no text");
    row("a day that is none", "{\"begun\": \"yesterday\", \"devices\": []}",
        ".begun: this is no date and time");
    row("a day that is a number", "{\"begun\": 5, \"devices\": []}", ".begun: this is no text");
}

void TestFoundJson::whatIsNoSearchIsToldWithItsPlace()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, fault);
    QCOMPARE(readFoundJson(text).fault, fault);
}

TESSEL_TEST_MAIN(TestFoundJson)
#include "tst_foundjson.moc"
