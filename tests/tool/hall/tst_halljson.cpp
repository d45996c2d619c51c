#include "commandrun.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "halljson.h"
#include "testcase.h"

#include <QJsonDocument>
#include <QTest>

namespace {

QByteArray jsonOf(const DocumentData& hall)
{
    return QJsonDocument(writeHallJson(hall)).toJson();
}

/// A hall as it is while the installer is still at work, or as a damaged file could hold it.
struct OddHall
{
    const char* name;
    void (*change)(DocumentData& hall);
};

constexpr OddHall oddHalls[] = {
    {"nothing at all", [](DocumentData& hall) { hall = DocumentData(); }},
    {"no sets and presets yet",
     [](DocumentData& hall) {
         hall.deviceSets.clear();
         hall.presets.clear();
         hall.pageIndex = 3;
     }},
    {"no layouts, but the sets of former ones", [](DocumentData& hall) { hall.scenes.clear(); }},
    {"cells in another order",
     [](DocumentData& hall) { hall.rooms.first().positionList.swapItemsAt(0, 5); }},
    {"two rooms in one cell",
     [](DocumentData& hall) {
         hall.rooms.first().positionList.append({7, 0});
     }},
    {"a room without cells", [](DocumentData& hall) { hall.rooms[1].positionList.clear(); }},
    {"a room 0", [](DocumentData& hall) { hall.rooms[1].number = 0; }},
    {"a hole in the layouts", [](DocumentData& hall) { hall.scenes[0].number = 7; }},
    {"a layout of nonsense",
     [](DocumentData& hall) { hall.scenes[0].roomGroup = QStringLiteral("a+/"); }},
    {"rooms named backwards",
     [](DocumentData& hall) { hall.scenes[1].roomGroup = QStringLiteral("4/3/2/1"); }},
    {"a layout twice",
     [](DocumentData& hall) { hall.scenes[0].roomGroup = QStringLiteral("1/2/3/4"); }},
    {"another picture", [](DocumentData& hall) { hall.scenes[0].thumbnail.fill(Qt::red); }},
    {"no picture", [](DocumentData& hall) { hall.scenes[0].thumbnail = QPixmap(); }},
    {"a side that is none",
     [](DocumentData& hall) {
         hall.deviceSets.find(1, 1, QStringLiteral("127.0.1.7"))->speakerPosition =
             QStringLiteral("X");
     }},
    {"a device moved after the sets were stored",
     [](DocumentData& hall) { hall.devices.find(QStringLiteral("127.0.1.7"))->roomNumber = 3; }},
    {"a preset of no set",
     [](DocumentData& hall) {
         hall.presets.append({99, 98, QStringLiteral("lost")});
     }},
    {"a device twice",
     [](DocumentData& hall) { hall.devices.append(DeviceData(hall.devices.all().first())); }},
    {"a window",
     [](DocumentData& hall) {
         hall.windowSize = {1024, 768};
     }},
};

} // namespace

/// Halls as JSON and back.
class TestHallJson : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatPeopleLeaveOutHasTheWizardsDefaults();
    void thereAndBackGivesTheSameBytes_data();
    void thereAndBackGivesTheSameBytes();
    void aHallAsTheWizardLeavesItHasNothingExact();
    void theSameHallIsTheSameText();
    void aSoundHallHasNoFaults();
    void whatCannotBeUnderstoodIsAFaultWithItsPlace_data();
    void whatCannotBeUnderstoodIsAFaultWithItsPlace();
    void whatMakesNoSenseIsAFaultWithItsPlace_data();
    void whatMakesNoSenseIsAFaultWithItsPlace();
    void allFaultsAreToldAtOnce();
};

void TestHallJson::whatPeopleLeaveOutHasTheWizardsDefaults()
{
    const HallJsonReading reading = readHallJson(sampleHallText());
    QCOMPARE(reading.faults, QStringList());
    const DocumentData& hall = reading.hall->data();
    QCOMPARE(hall.pageIndex, 7);
    QCOMPARE(hall.windowSize, QSize());
    QCOMPARE(hall.devices.all().at(1).label, QStringLiteral("127.0.1.2"));
    QVERIFY(!hall.devices.all().at(1).labelModified);
    QCOMPARE(hall.presets.size(), 7);
    QCOMPARE(hall.presets.at(0).presetName, QStringLiteral("Big \"hall\""));
    QCOMPARE(hall.presets.at(1).presetName, QString());
    QVERIFY(hall.deviceSets.find(1, 1, QStringLiteral("127.0.1.2"))->remove);
    QCOMPARE(hall.deviceSets.find(1, 1, QStringLiteral("127.0.1.6"))->speakerPosition,
             QStringLiteral("L"));
    QCOMPARE(hall.deviceSets.find(1, 1, QStringLiteral("127.0.1.7"))->speakerPosition,
             QStringLiteral("R"));
    QCOMPARE(hall.scenes.at(0).thumbnail.size(), QSize(64, 64));
}

void TestHallJson::thereAndBackGivesTheSameBytes_data()
{
    QTest::addColumn<int>("odd");
    int index = 0;
    for (const OddHall& odd : oddHalls) {
        QTest::newRow(odd.name) << index++;
    }
}

void TestHallJson::thereAndBackGivesTheSameBytes()
{
    QFETCH(const int, odd);
    const HallJsonReading sample = readHallJson(sampleHallText());
    DocumentData hall = sample.hall->data();
    oddHalls[odd].change(hall);
    const HallJsonReading back = readHallJson(jsonOf(hall));
    QCOMPARE(back.faults, QStringList());
    QCOMPARE(packHall(back.hall->data()), packHall(hall));
}

void TestHallJson::aHallAsTheWizardLeavesItHasNothingExact()
{
    const HallJsonReading sample = readHallJson(sampleHallText());
    const QJsonObject written = writeHallJson(sample.hall->data());
    QVERIFY(!written.contains(QStringLiteral("exact")));
    QVERIFY(!written.contains(QStringLiteral("not-chosen")));
    const HallJsonReading back = readHallJson(QJsonDocument(written).toJson());
    QCOMPARE(packHall(back.hall->data()), packHall(sample.hall->data()));
}

void TestHallJson::theSameHallIsTheSameText()
{
    const HallJsonReading one = readHallJson(sampleHallText());
    const HallJsonReading other = readHallJson(jsonOf(one.hall->data()));
    QCOMPARE(jsonOf(other.hall->data()), jsonOf(one.hall->data()));
}

void TestHallJson::aSoundHallHasNoFaults()
{
    const HallJsonReading reading = readHallJson(sampleHallText());
    QCOMPARE(hallFaults(*reading.hall), QStringList());
    QVERIFY(readHallJson("{}").hall != nullptr);
}

void TestHallJson::whatCannotBeUnderstoodIsAFaultWithItsPlace_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const QByteArray sample = sampleHallText();
    const auto row = [](const char* name, const QByteArray& text, const char* fault) {
        QTest::newRow(name) << text << QString::fromLatin1(fault);
    };
    const auto with = [&sample, &row](const char* name, const char* before, const char* after,
                                      const char* fault) {
        row(name, changed(sample, before, after), fault);
    };
    row("no JSON", "{\n  \"rooms\": [,]}", "line 2, column");
    row("cut", sample.chopped(40), "line 18, column 39: unterminated string");
    row("a list", "[]", "this is no object");
    row("nested without end", QByteArray(100000, '['), "line 1, column");
    row("a later version", "{\"tessel\": 2}", ".tessel: version 2 is not known here");
    row("no version", "{\"tessel\": \"1\"}", ".tessel: this is no number");
    row("a number", "1", "line 1, column 1: this is no object");
    row("a step beyond the last", "{\"step\": 10}", ".step: this is no number from 1 to 9");
    row("half a step", "{\"step\": 1.5}", ".step: ");
    row("a huge number", "{\"step\": 1e300}", ".step: ");
    row("an unknown key", "{\"roms\": []}", ".roms: unknown key");
    row("rooms of another type", "{\"rooms\": 7}", ".rooms: this is no list");
    row("one row", "{\"rooms\": [\"11112222\"]}", ".rooms: 1 rows; there are 8");
    with("a short row", "\"........\"", "\".......\"", ".rooms: row 8: 7 characters");
    with("room 5", "\"........\"", "\".......5\"", ".rooms: row 8: \"5\" is no room");
    with("a device without address", "\"address\": \"127.0.1.8\", ", "",
         ".devices[7].address: this is missing");
    with("a device without model", "\"model\": \"PNB-QE7\", ", "",
         ".devices[7].model: this is missing");
    with("a label of another type", "\"Hub-1\"", "1", ".devices[0].label: this is no text");
    with("a label with a null", "\"Hub-1\"", "\"a\\u0000b\"",
         ".devices[0].label: it has characters");
    with("a room of another type", "\"room\": 4", "\"room\": \"4\"",
         ".devices[3].room: this is no number");
    with("a room that is none", "\"room\": 4", "\"room\": 5",
         ".devices[3].room: this is no number from 0 to 4");
    with("a flag of another type", "true", "1", ".devices[0].renamed: this is neither");
    with("a layout that is none", "\"1/2/3/4\"", "\"1-2/3/4\"",
         ".layouts[1].rooms: \"1-2/3/4\" is no layout");
    with("a layout with another number", "{\"rooms\": \"1/2/3/4\"",
         "{\"number\": 3, \"rooms\": \"1/2/3/4\"",
         ".layouts[1].number: this is no number from 2 to 2");
    with("an unknown combined room", "{\"rooms\": \"4\"", "{\"rooms\": \"2\"",
         ".layouts[0].combined[1].rooms: unknown combined room \"2\"");
    with("a combined room twice", "{\"rooms\": \"4\"", "{\"rooms\": \"2+1\"",
         ".layouts[0].combined[1].rooms: \"2+1\" is there already");
    with("an unknown device removed", "[\"127.0.1.2\"]", "[\"127.0.1.99\"]",
         ".layouts[0].combined[0].removed: unknown device 127.0.1.99");
    with("a device of another room removed", "[\"127.0.1.2\"]", "[\"127.0.1.3\"]",
         ".layouts[0].combined[0].removed: 127.0.1.3 is not in these rooms");
    with("a list of numbers", "[\"127.0.1.2\"]", "[2]", "not all of these are texts");
    with("a preset where its name belongs", "\"preset-name\": \"Small\"", "\"preset\": \"Small\"",
         ".layouts[0].combined[1].preset: unknown key");
    row("a picture that is none",
        "{\"exact\": {\"layouts\": [{\"number\": 1, \"picture\": \"AAAA\"}]}}",
        ".exact.layouts[0].picture: this is no small PNG picture");
    const QByteArray longText = "1" + QByteArray("/1").repeated(32);
    row("a layout longer than a file holds", "{\"layouts\": [{\"rooms\": \"" + longText + "\"}]}",
        ".layouts[0].rooms: 65 characters; a file holds 64");
    row("an exact layout longer than a file holds",
        "{\"exact\": {\"layouts\": [{\"rooms\": \"" + longText + "\"}]}}",
        ".exact.layouts[0].rooms: 65 characters; a file holds 64");
    row("an exact room twice", "{\"exact\": {\"rooms\": [{\"number\": 1}, {\"number\": 1}]}}",
        ".exact.rooms[1].number: an earlier room");
    const auto cells = [&row](const char* name, const QByteArray& text) {
        row(name, R"({"exact": {"rooms": [{"number": 1, "cells": ")" + text + R"("}]}})",
            ".exact.rooms[0].cells: these are no cells such as \"{0,0}/{0,1}\"");
    };
    cells("cells that are none", "foo");
    cells("a cell beyond the grid", "{99,99}/{1,1}");
    cells("a cell twice", "{1,1}/{1,1}");
    row("an exact member twice",
        "{\"exact\": {\"sets\": [{\"set\": 1, \"layout\": 1, \"address\": \"a\"}, "
        "{\"set\": 1, \"layout\": 1, \"address\": \"a\"}]}}",
        ".exact.sets[1].address: ");
    row("an exact preset twice", "{\"exact\": {\"presets\": [{\"set\": 1}, {\"set\": 1}]}}",
        ".exact.presets[1].set: ");
}

void TestHallJson::whatCannotBeUnderstoodIsAFaultWithItsPlace()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, fault);
    const HallJsonReading reading = readHallJson(text);
    QVERIFY(reading.hall == nullptr);
    QVERIFY2(reading.faults.value(0).contains(fault), qPrintable(reading.faults.join(u'\n')));
}

void TestHallJson::whatMakesNoSenseIsAFaultWithItsPlace_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const QByteArray sample = sampleHallText();
    const auto with = [&sample](const char* name, const char* before, const QByteArray& after,
                                const QByteArray& fault) {
        QTest::newRow(name) << changed(sample, before, after) << QString::fromLatin1(fault);
    };
    with("no address", "\"address\": \"127.0.1.8\"", "\"address\": \"127.0.1.256\"",
         "device 127.0.1.256: this is no address");
    for (const char* address :
         {"0.0.0.0", "0.1.2.3", "224.0.0.251", "240.0.0.1", "255.255.255.255"}) {
        const QByteArray named = QByteArray("\"address\": \"") + address + '"';
        const QByteArray told =
            QByteArray("device ") + address + ": this is no address of a device";
        with(address, "\"address\": \"127.0.1.8\"", named, told);
    }
    with("a label with a control character", "\"label\": \"Hub-1\", \"renamed\": true",
         "\"label\": \"Hub\\t1\"", "device 127.0.1.1: its label has control characters");
    with("a MAC address of everyone", "02:1A:FF:00:00:08", "FF:FF:FF:FF:FF:FF",
         "\"FF:FF:FF:FF:FF:FF\" is no MAC address");
    with("a MAC address of a group", "02:1A:FF:00:00:08", "01:00:5e:00:00:08",
         "\"01:00:5e:00:00:08\" is no MAC address");
    const auto exact = [&with](const char* name, const QByteArray& part, const char* fault) {
        with(name, "\"layouts\":", "\"exact\": {" + part + "}, \"layouts\":", fault);
    };
    exact("an exact member of nothing", "\"sets\": [{}]",
          "exact.sets: layout 0 has no combined room 0");
    exact("an exact member of another layout's set",
          R"("sets": [{"set": 4, "layout": 1, "address": "127.0.1.1"}])",
          "exact.sets: layout 1 has no combined room 4");
    exact("an exact member without address", R"("sets": [{"set": 1, "layout": 1}])",
          "layout 1, room 1+2: a device without address");
    exact("an exact member's side",
          R"("sets": [{"set": 1, "layout": 1, "address": "127.0.1.6", "side": "X"}])",
          "layout 1, room 1+2: side \"X\" of 127.0.1.6 is neither L nor R");
    exact("an exact preset of nothing", "\"presets\": [{\"name\": \"lost\"}]",
          "exact.presets: layout 0 has no combined room 0");
    with("an address twice", "\"address\": \"127.0.1.8\"", "\"address\": \"127.0.1.7\"",
         "device 127.0.1.7: an earlier device has this address");
    with("no MAC address", ", \"mac\": \"02:1A:FF:00:00:08\"", "",
         "device 127.0.1.8: its MAC address is missing");
    with("a MAC address of zeros", "02:1A:FF:00:00:08", "00:00:00:00:00:00", "is no MAC address");
    with("a MAC address twice", "02:1A:FF:00:00:08", "02:1a:ff:00:00:07",
         "device 127.0.1.8: an earlier device has the MAC address");
    with("an unknown model", "PNB-QE7", "XY-1", "device 127.0.1.8: unknown model \"XY-1\"");
    with("an unknown room", "\"33334444\", \"33334444\", \"33334444\"",
         "\"33333333\", \"33333333\", \"33333333\"", "device 127.0.1.4: unknown room 4");
    with("a hole in the rooms", "\"33334444\", \"33334444\", \"33334444\"",
         "\"44444444\", \"44444444\", \"44444444\"", "rooms: there is a room 4, but no room 3");
    with("a name that is none", "Hub-1", "Hub 1", "device 127.0.1.1: \"Hub 1\" is no name");
    with("a layout twice", "\"1/2/3/4\"", "\"2+1/4/3\"", "layout 2: 1+2/3/4 is layout 1 already");
    with("a layout of an unknown room", "\"1/2/3/4\"", "\"1/2/3/4+7\"", "layout 2: unknown room 7");
    with("a room twice in a layout", "\"1/2/3/4\"", "\"1/2/3/4+1\"",
         "layout 2: room 1 is in it twice");
    with("a room that a layout lacks", "\"1/2/3/4\"", "\"1/2/3\"", "layout 2: room 4 is not in it");
    with("a side for a microphone", "\"right\": [\"127.0.1.7\"]", "\"right\": [\"127.0.1.5\"]",
         "layout 1, room 1+2: 127.0.1.5 is no speaker");
    with("a preset name too long", "\"Small\"", '"' + QByteArray(256, 'a') + '"',
         "layout 1, room 4: a preset name of 256 characters; 255 are possible");
    with("two hubs in a set", ", \"removed\": [\"127.0.1.2\"]", "",
         "layout 1, room 1+2: 2 PX-HBs; 1 is possible");
    QByteArray many;
    for (int n = 1; n <= 16; ++n) {
        many += R"({"address": "127.0.2.)" + QByteArray::number(n) +
                R"(", "model": "PX-DL", "mac": "02:1A:FF:00:01:)" +
                QByteArray::number(n).rightJustified(2, '0') + R"(", "room": 3}, )";
    }
    with("17 devices", "{\"address\": \"127.0.1.3\"",
         many +
             R"({"address": "127.0.2.17", "model": "PX-DL", "mac": "02:1A:FF:00:01:17", "room": 3},
                   {"address": "127.0.1.3")",
         "room 3: 17 microphones; 16 are possible");
    QByteArray layouts;
    for (int n = 0; n < 10; ++n) {
        layouts += R"({"rooms": "1/2/3+4"}, )";
    }
    with("twelve layouts", "{\"rooms\": \"1/2/3/4\"}", layouts + R"({"rooms": "1/2/3/4"})",
         "layouts: there are 12; 10 are possible");
}

void TestHallJson::whatMakesNoSenseIsAFaultWithItsPlace()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, fault);
    const HallJsonReading reading = readHallJson(text);
    QCOMPARE(reading.faults, QStringList());
    const QStringList faults = hallFaults(*reading.hall);
    QVERIFY2(!faults.filter(fault).isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestHallJson::allFaultsAreToldAtOnce()
{
    const HallJsonReading reading =
        readHallJson(R"({"rooms": 7, "devices": [{}, 3], "layouts": "none", "x": 1})");
    QCOMPARE(reading.faults.size(), 6);
}

TESSEL_TEST_MAIN(TestHallJson)
#include "tst_halljson.moc"
