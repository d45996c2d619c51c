#include "testcase.h"
#include "walkjson.h"

#include <QTest>

namespace {

QByteArray sampleWalk()
{
    return R"({"begun": "2026-11-22T10:15:00", "ok": false,
 "hubs": [{"address": "127.0.1.1", "label": "Hub-1", "mac": "02:1A:FF:00:00:01",
           "before": 2, "restored": null, "back": false}],
 "layouts": [{"number": 1, "rooms": "1/2", "reached": true,
              "hubs": [{"address": "127.0.1.1", "preset": 1, "ok": true}]}]})";
}

} // namespace

/// Reading what came of a walk.
class TestWalkJson : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aWalkIsReadWithItsHubsAndLayouts();
    void keysOfLaterVersionsDoNoHarm();
    void whatIsNoWalkIsToldWithItsPlace_data();
    void whatIsNoWalkIsToldWithItsPlace();
};

void TestWalkJson::aWalkIsReadWithItsHubsAndLayouts()
{
    const WalkReading reading = readWalkJson(sampleWalk());
    QCOMPARE(reading.fault, QString());
    QCOMPARE(reading.begun, QDateTime(QDate(2026, 11, 22), QTime(10, 15)));
    QCOMPARE(reading.hubs.size(), 1);
    QCOMPARE(reading.hubs.first().before, std::optional(2));
    QCOMPARE(reading.hubs.first().restored, std::optional<int>());
    QVERIFY(!reading.hubs.first().isBack);
    QCOMPARE(reading.layouts.size(), 1);
    QCOMPARE(reading.layouts.first().rooms, QStringLiteral("1/2"));
    QVERIFY(reading.layouts.first().isReached);
    QCOMPARE(reading.layouts.first().presets.value(QStringLiteral("127.0.1.1")), std::optional(1));
}

void TestWalkJson::keysOfLaterVersionsDoNoHarm()
{
    QCOMPARE(readWalkJson(sampleWalk().replace("\"ok\":", "\"more\": [1], \"ok\":")).fault,
             QString());
}

void TestWalkJson::whatIsNoWalkIsToldWithItsPlace_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* name, const char* before, const char* after,
                        const char* fault) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after)
                            << QString::fromLatin1(fault);
    };
    row("no JSON", "{\"begun\"", "{begun", "line 1, column 3: unterminated object");
    row("no day", "\"begun\"", "\"began\"", ".begun: this is missing");
    row("a day that is none", "2026-11-22T", "2026-13-22T", ".begun: this is no date and time");
    row("no hubs", "\"hubs\": [{\"address\": \"127.0.1.1\", \"label\"",
        "\"hub\": [{\"address\": \"127.0.1.1\", \"label\"", ".hubs: this is missing");
    row("hubs that are no list", "\"hubs\": [{\"address\": \"127.0.1.1\", \"label\"",
        "\"hubs\": 7, \"hub\": [{\"address\": \"127.0.1.1\", \"label\"", ".hubs: this is no list");
    row("a hub without address", "\"address\": \"127.0.1.1\", \"label\"", "\"label\"",
        ".hubs[0].address: this is missing");
    row("a preset that is a text", "\"before\": 2", "\"before\": \"2\"",
        ".hubs[0].before: this is no number from 0 to 2147483647");
    row("a preset below none", "\"restored\": null", "\"restored\": -1",
        ".hubs[0].restored: this is no number from 0 to 2147483647");
    row("a hub that is back as a text", "\"back\": false", "\"back\": \"no\"",
        ".hubs[0].back: this is neither true nor false");
    row("no layouts", "\"layouts\"", "\"layout\"", ".layouts: this is missing");
    row("a layout without number", "\"number\": 1", "\"number\": 0",
        ".layouts[0].number: this is no number from 1 to 2147483647");
    row("a layout without rooms", "\"rooms\": \"1/2\"", "\"rooms\": \"\"",
        ".layouts[0].rooms: this is missing");
    row("a layout without hubs", "\"hubs\": [{\"address\": \"127.0.1.1\", \"preset\"",
        "\"hub\": [{\"address\": \"127.0.1.1\", \"preset\"", ".layouts[0].hubs: this is missing");
    row("a half preset", "\"preset\": 1", "\"preset\": 1.5",
        ".layouts[0].hubs[0].preset: this is no number from 0 to 2147483647");
}

void TestWalkJson::whatIsNoWalkIsToldWithItsPlace()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    QFETCH(const QString, fault);
    QCOMPARE(sampleWalk().count(before), 1);
    QCOMPARE(readWalkJson(sampleWalk().replace(before, after)).fault, fault);
}

TESSEL_TEST_MAIN(TestWalkJson)
#include "tst_walkjson.moc"
