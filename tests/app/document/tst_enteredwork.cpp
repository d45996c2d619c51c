#include "datakey.h"
#include "datakind.h"
#include "devicequeries.h"
#include "documentfixtures.h"
#include "enteredwork.h"
#include "layoutqueries.h"
#include "presetqueries.h"
#include "roomqueries.h"
#include "sessionqueries.h"
#include "setqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

namespace {

using Change = std::function<void(TesselDoc&)>;

const QString hub = QStringLiteral("10.0.0.1");
const QString speaker = QStringLiteral("10.0.0.2");

void fill(TesselDoc& doc)
{
    addTestDevice(doc, QStringLiteral("device"), QStringLiteral("PX-HB"), hub);
    addTestDevice(doc, QStringLiteral("device"), QStringLiteral("DSK4M"), speaker);
    QVERIFY(setDeviceRoom(doc, hub, 1) && setDeviceRoom(doc, speaker, 1));
    setRoomCells(doc, 1, {{0, 0}, {1, 0}});
    setRoomCells(doc, 2, {{0, 1}});
    QVERIFY(addLayout(doc, {1, QStringLiteral("1/2"), QPixmap(64, 64)}));
    QVERIFY(addToDeviceSet(doc, 1, 1, hub, false) && addToDeviceSet(doc, 1, 1, speaker, false));
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("one")));
}

QByteArray savedBytes(TesselDoc& doc)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("work")));
    return doc.saveResume(file.fileName()) && file.open(QIODevice::ReadOnly) ? file.readAll()
                                                                             : QByteArray();
}

void setLayout(TesselDoc& doc, const QString& roomGroup, const QPixmap& picture)
{
    QVERIFY(doc.setData(DataKind::Scene, {{DataKey::sceneNumber(), 1},
                                          {DataKey::roomGroup(), roomGroup},
                                          {DataKey::roomThumbnail(), picture}}));
}

void row(const char* name, const Change& change)
{
    QTest::newRow(name) << change;
}

void addDeviceRows()
{
    row("a device more", [](TesselDoc& doc) {
        addTestDevice(doc, QStringLiteral("device"), QStringLiteral("PX-DL"),
                      QStringLiteral("10.0.0.9"));
    });
    row("another room", [](TesselDoc& doc) { setDeviceRoom(doc, speaker, 2); });
    row("no room", [](TesselDoc& doc) { setDeviceRoom(doc, speaker, 0); });
    row("another label", [](TesselDoc& doc) { setDeviceLabel(doc, hub, QStringLiteral("Hall")); });
    // From now on the hubs are told the name that the device had by itself.
    row("a label changed and changed back", [](TesselDoc& doc) {
        setDeviceLabel(doc, hub, QStringLiteral("Hall"));
        setDeviceLabel(doc, hub, QStringLiteral("device"));
    });
}

void addHallRows()
{
    row("another shape", [](TesselDoc& doc) { setRoomCells(doc, 2, {{0, 1}, {0, 2}}); });
    row("a room more", [](TesselDoc& doc) { setRoomCells(doc, 3, {{5, 5}}); });
    row("no rooms", [](TesselDoc& doc) { clearRooms(doc); });
    row("another layout",
        [](TesselDoc& doc) { setLayout(doc, QStringLiteral("1+2"), QPixmap(64, 64)); });
    row("a layout more", [](TesselDoc& doc) {
        addLayout(doc, {2, QStringLiteral("1+2"), QPixmap(64, 64)});
    });
    row("a device out of a set", [](TesselDoc& doc) {
        doc.setData(DataKind::DeviceSet, {{DataKey::deviceSetNumber(), 1},
                                          {DataKey::sceneNumber(), 1},
                                          {DataKey::deviceIPAddress(), speaker},
                                          {DataKey::deviceSetRemove(), true}});
    });
    row("a speaker on the other side",
        [](TesselDoc& doc) { setSpeakerPosition(doc, 1, 1, speaker, QStringLiteral("R")); });
    row("another preset name", [](TesselDoc& doc) {
        clearPresets(doc);
        addPreset(doc, 1, 1, QStringLiteral("two"));
    });
    row("no presets", [](TesselDoc& doc) { clearPresets(doc); });
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestEnteredWork : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyChangeOfWhatWasEnteredIsSeen_data();
    void everyChangeOfWhatWasEnteredIsSeen();
    void pageWindowSizeAndPicturesAreNoPartOfIt();
    void whatIsEnteredAgainIsTheSame();
    void takingItDownChangesNothing();
    void anEmptyDocumentHasNone();
};

void TestEnteredWork::everyChangeOfWhatWasEnteredIsSeen_data()
{
    QTest::addColumn<Change>("change");
    addDeviceRows();
    addHallRows();
}

void TestEnteredWork::everyChangeOfWhatWasEnteredIsSeen()
{
    QFETCH(const Change, change);
    TesselDoc doc(nullptr);
    fill(doc);
    const EnteredWork before = enteredWork(doc);
    change(doc);
    QVERIFY(enteredWork(doc) != before);
}

void TestEnteredWork::pageWindowSizeAndPicturesAreNoPartOfIt()
{
    TesselDoc doc(nullptr);
    fill(doc);
    const EnteredWork before = enteredWork(doc);
    setPageIndex(doc, 7);
    setWindowSize(doc, {900, 700});
    setNicIndex(doc, 3);
    setLayout(doc, QStringLiteral("1/2"), QPixmap());
    QCOMPARE(enteredWork(doc), before);
}

void TestEnteredWork::whatIsEnteredAgainIsTheSame()
{
    TesselDoc doc(nullptr);
    fill(doc);
    const EnteredWork before = enteredWork(doc);
    setDeviceRoom(doc, speaker, 0);
    setDeviceRoom(doc, speaker, 1);
    clearPresets(doc);
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("one")));
    clearDeviceSets(doc);
    QVERIFY(addToDeviceSet(doc, 1, 1, hub, false) && addToDeviceSet(doc, 1, 1, speaker, false));
    QCOMPARE(enteredWork(doc), before);
}

void TestEnteredWork::takingItDownChangesNothing()
{
    TesselDoc doc(nullptr);
    fill(doc);
    const QByteArray before = savedBytes(doc);
    QVERIFY(!before.isEmpty());
    enteredWork(doc);
    QCOMPARE(savedBytes(doc), before);
}

void TestEnteredWork::anEmptyDocumentHasNone()
{
    TesselDoc doc(nullptr);
    QVERIFY(enteredWork(doc).isEmpty());
}

TESSEL_TEST_MAIN(TestEnteredWork)
#include "tst_enteredwork.moc"
