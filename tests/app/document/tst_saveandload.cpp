#include "datakey.h"
#include "datakind.h"
#include "devicequeries.h"
#include "dialoganswerer.h"
#include "hands.h"
#include "layoutqueries.h"
#include "missingdevices.h"
#include "presetqueries.h"
#include "resumefile.h"
#include "roomqueries.h"
#include "savedwork.h"
#include "setqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QFile>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

namespace {

QPixmap picture(int number)
{
    QPixmap pixmap(64, 64);
    pixmap.fill(QColor::fromHsv((number * 37) % 360, 200, 200));
    return pixmap;
}

QString addressOf(int number)
{
    return QStringLiteral("10.0.%1.%2").arg(number / 250).arg(number % 250 + 1);
}

QString macOf(int number)
{
    return QStringLiteral("a0:00:00:00:00:%1").arg(number, 2, 16, QLatin1Char('0'));
}

FoundDevice foundDevice(int number)
{
    return {.label = QStringLiteral("device %1").arg(number),
            .modelName = number % 10 == 0 ? QStringLiteral("PX-HB") : QStringLiteral("PX-DL"),
            .version = QStringLiteral("2.1"),
            .ipAddress = addressOf(number),
            .macAddress = macOf(number),
            .searchType = QStringLiteral("HTTP"),
            .password = QStringLiteral("secret")};
}

void addDevices(TesselDoc& doc, int count)
{
    for (int number = 0; number < count; ++number) {
        QVERIFY(addDevice(doc, foundDevice(number)));
    }
}

/// Rooms, layouts with pictures, sets, positions, names, labels, page and window size.
void fill(TesselDoc& doc, int devices, int rooms, int layouts)
{
    addDevices(doc, devices);
    for (int room = 1; room <= rooms; ++room) {
        setRoomCells(doc, room, {{room, 0}, {room, 7}, {room, 3}});
    }
    for (int number = 0; number < devices; ++number) {
        QVERIFY(setDeviceRoom(doc, addressOf(number), rooms > 0 ? number % (rooms + 1) : 0));
    }
    for (int scene = 1; scene <= layouts; ++scene) {
        QVERIFY(addLayout(doc, {scene, QStringLiteral("1+2/3/4"), picture(scene)}));
        QVERIFY(addPreset(doc, scene, scene, QStringLiteral("Ä \"%1\" \\ <&> 50%2").arg(scene)));
        for (int number = 0; number < devices; ++number) {
            QVERIFY(addToDeviceSet(doc, scene, scene, addressOf(number), number % 3 == 0));
            QVERIFY(
                setSpeakerPosition(doc, scene, scene, addressOf(number),
                                   number % 2 == 0 ? QStringLiteral("R") : QStringLiteral("L")));
        }
    }
    QVERIFY(doc.setData(DataKind::PageIndex, {{DataKey::index(), 6}}));
    QVERIFY(doc.setData(DataKind::WindowSize, {{DataKey::size(), QSize(1100, 900)}}));
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes thousands of damaged files quickly: nothing here needs to reach the disk, and some file
/// systems wait for it when a file is emptied and written again.
bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile::remove(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

int pageIndex(TesselDoc& doc)
{
    QVariantMap data;
    doc.getData(DataKind::PageIndex, data);
    return data.value(DataKey::index()).toInt();
}

/// The box of missing devices must come up, and gets its "OK".
struct MissingBox
{
    DialogAnswerer answerer{"Missing device", [this](QWidget* dialog) {
                                auto* box = qobject_cast<QMessageBox*>(dialog);
                                icon = box->icon();
                                hasParent = box->parent() != nullptr;
                                const QRect screen = box->screen()->availableGeometry();
                                fitsOnScreen = screen.contains(box->frameGeometry());
                                Hands::clickButton(box, "OK");
                            }};
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool hasParent = false;
    bool fitsOnScreen = false;
};

const QString missingIntroduction =
    QStringLiteral("The following device cannot be found. Please check that it is powered and "
                   "connected to the network.\n\n");

} // namespace

class TestSaveAndLoad : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyKindOfContentComesBack_data();
    void everyKindOfContentComesBack();
    void valuesComeBackAsTheyWere();
    void sameDocumentIsTheSameFile();
    void passwordVersionAndSearchTypeStayOut();
    void loadingReplacesListsButKeepsDevices();
    void changedLabelComesBackAndStaysChanged();
    void unchangedLabelIsNotTakenFromTheFile();
    void changedMacAddressCountsAsMissing();
    void changedModelCountsAsMissing();
    void secondDeviceOfAnAddressIsFoundByItsMac();
    void aDeviceThatWasSavedTwiceKeepsItsRoomAndItsLabel_data();
    void aDeviceThatWasSavedTwiceKeepsItsRoomAndItsLabel();
    void missingDevicesAreListedInFileOrder();
    void missingDeviceInNoRoomIsForgotten();
    void textsOfMissingDevicesAreTakenLiterally();
    void messageOfAHostileFileStaysShort();
    void aHallFullOfMissingDevicesIsListedOnTheScreen();
    void missingDevicesStopTheLoadThere();
    void layoutsOfOneTextGetTheirOwnPictures();
    void pictureWithoutAMatchIsDropped();
    void damagedTailCostsPicturesOnly();
    void foreignRootLeavesTheDocumentUntouched();
    void foreignElementKeepsWhatCameBefore();
    void repeatedRecordsCountOnce();
    void fileCutAtEveryLengthLeavesTheDocumentUsable();
    void unwritablePlaceIsTold();
    void missingFileIsTold();

private:
    QString writeXml(const QString& xml, const QList<SceneInfo>& scenes = {});
    QString writeInside(const QString& inside, const QList<SceneInfo>& scenes = {});

    QTemporaryDir m_folder;
    QString m_path;
};

void TestSaveAndLoad::init()
{
    TestCase::init();
    m_path = m_folder.filePath(QStringLiteral("resume.dat"));
    QFile::remove(m_path);
}

QString TestSaveAndLoad::writeXml(const QString& xml, const QList<SceneInfo>& scenes)
{
    return writeResumeFile(m_path, packResumeFile({xml, scenes})) ? m_path : QString();
}

QString TestSaveAndLoad::writeInside(const QString& inside, const QList<SceneInfo>& scenes)
{
    return writeXml(QStringLiteral("<Tessel Page=\"3\">") + inside + QStringLiteral("</Tessel>"),
                    scenes);
}

void TestSaveAndLoad::everyKindOfContentComesBack_data()
{
    QTest::addColumn<int>("devices");
    QTest::addColumn<int>("rooms");
    QTest::addColumn<int>("layouts");
    QTest::newRow("nothing") << 0 << 0 << 0;
    QTest::newRow("devices only") << 5 << 0 << 0;
    QTest::newRow("rooms only") << 0 << 4 << 0;
    QTest::newRow("4 rooms and 10 layouts") << 24 << 4 << 10;
    QTest::newRow("250 devices") << 250 << 4 << 10;
}

void TestSaveAndLoad::everyKindOfContentComesBack()
{
    QFETCH(const int, devices);
    QFETCH(const int, rooms);
    QFETCH(const int, layouts);
    TesselDoc before(nullptr);
    fill(before, devices, rooms, layouts);
    QVERIFY(before.saveResume(m_path));
    const QByteArray saved = bytesOf(m_path);
    TesselDoc after(nullptr);
    addDevices(after, devices);
    QVERIFY(after.loadResume(m_path));
    QVERIFY(after.saveResume(m_path));
    QCOMPARE(bytesOf(m_path), saved);
}

void TestSaveAndLoad::valuesComeBackAsTheyWere()
{
    TesselDoc before(nullptr);
    fill(before, 5, 4, 2);
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    addDevices(after, 5);
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(pageIndex(after), 6);
    QVariantMap size;
    QVERIFY(after.getData(DataKind::WindowSize, size));
    QCOMPARE(size.value(DataKey::size()).toSize(), QSize(1100, 900));
    QCOMPARE(deviceByAddress(after, addressOf(3))->roomNumber, 3);
    QCOMPARE(roomCells(after, 2), QList<QPoint>({{2, 0}, {2, 7}, {2, 3}}));
    QCOMPARE(layoutCount(after), 2);
    QCOMPARE(layoutAt(after, 2)->roomGroup, QStringLiteral("1+2/3/4"));
    QCOMPARE(layoutAt(after, 2)->thumbnail.toImage(), picture(2).toImage());
    QVERIFY(deviceSetRecord(after, 2, 2, addressOf(3))->remove);
    QCOMPARE(deviceSetRecord(after, 2, 2, addressOf(4))->speakerPosition, QStringLiteral("R"));
    QCOMPARE(presetName(after, 1, 1), presetName(before, 1, 1));
    QCOMPARE(presetNameOfHub(after, addressOf(0), 2), presetName(before, 2, 2));
}

void TestSaveAndLoad::sameDocumentIsTheSameFile()
{
    TesselDoc doc(nullptr);
    fill(doc, 10, 4, 10);
    QVERIFY(doc.saveResume(m_path));
    const QByteArray first = bytesOf(m_path);
    QVERIFY(doc.saveResume(m_path));
    QCOMPARE(bytesOf(m_path), first);
}

void TestSaveAndLoad::passwordVersionAndSearchTypeStayOut()
{
    TesselDoc doc(nullptr);
    fill(doc, 3, 1, 1);
    QVERIFY(doc.saveResume(m_path));
    const QString xml = unpackResumeFile(bytesOf(m_path))->xml;
    QVERIFY(!xml.contains(u"secret"));
    QVERIFY(!xml.contains(u"HTTP"));
    QVERIFY(!xml.contains(u"2.1"));
    QVERIFY(xml.contains(u"<DeviceData Label=\"device 0\" IP=\"10.0.0.1\" "
                         u"MacAddress=\"a0:00:00:00:00:00\" Model=\"PX-HB\" Room=\"0\" "
                         u"ModifiedLabel=\"0\"/>"));
}

void TestSaveAndLoad::loadingReplacesListsButKeepsDevices()
{
    TesselDoc before(nullptr);
    fill(before, 2, 1, 1);
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    fill(after, 6, 4, 5);
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(deviceCount(after), 6);
    QCOMPARE(roomCount(after), 1);
    QCOMPARE(layoutCount(after), 1);
    QVERIFY(!deviceSetRecord(after, 2, 2, addressOf(0)));
    QVERIFY(deviceSetRecord(after, 1, 1, addressOf(1)));
    QVERIFY(!deviceSetRecord(after, 1, 1, addressOf(5)));
    QVERIFY(!presetName(after, 2, 2));
    QCOMPARE(deviceByAddress(after, addressOf(1))->roomNumber, 1);
    // Not in the file: it stays where it is.
    QCOMPARE(deviceByAddress(after, addressOf(4))->roomNumber, 4);
}

void TestSaveAndLoad::changedLabelComesBackAndStaysChanged()
{
    TesselDoc before(nullptr);
    addDevices(before, 2);
    QVERIFY(setDeviceLabel(before, addressOf(1), QStringLiteral("Süd \"A\" <&>")));
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    addDevices(after, 2);
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(deviceByAddress(after, addressOf(1))->label, QStringLiteral("Süd \"A\" <&>"));
    QVERIFY(peripheralPresetFile(after, addressOf(1))->content.contains("sys.systemname"));
    QVERIFY(!peripheralPresetFile(after, addressOf(0))->content.contains("sys.systemname"));
}

void TestSaveAndLoad::unchangedLabelIsNotTakenFromTheFile()
{
    TesselDoc doc(nullptr);
    addDevices(doc, 1);
    QVERIFY(doc.loadResume(writeInside(
        QStringLiteral("<DeviceDataList><DeviceData Label='old' IP='%1' MacAddress='%2' "
                       "Model='PX-HB' Room='2' ModifiedLabel='0'/></DeviceDataList>")
            .arg(addressOf(0), macOf(0)))));
    QCOMPARE(deviceByAddress(doc, addressOf(0))->label, QStringLiteral("device 0"));
    QCOMPARE(deviceByAddress(doc, addressOf(0))->roomNumber, 2);
}

void TestSaveAndLoad::changedMacAddressCountsAsMissing()
{
    TesselDoc before(nullptr);
    addDevices(before, 1);
    QVERIFY(setDeviceRoom(before, addressOf(0), 2));
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    FoundDevice exchanged = foundDevice(0);
    exchanged.macAddress = macOf(9);
    QVERIFY(addDevice(after, exchanged));
    MissingBox box;
    QVERIFY(!after.loadResume(m_path));
    QCOMPARE(box.answerer.text(),
             missingIntroduction +
                 QStringLiteral("Hostname:device 0,Model:PX-HB,IP=%1\n").arg(addressOf(0)));
    QCOMPARE(deviceByAddress(after, addressOf(0))->roomNumber, 0);
}

void TestSaveAndLoad::changedModelCountsAsMissing()
{
    TesselDoc before(nullptr);
    addDevices(before, 1);
    QVERIFY(setDeviceRoom(before, addressOf(0), 2));
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    FoundDevice exchanged = foundDevice(0);
    exchanged.modelName = QStringLiteral("PX-HB2");
    QVERIFY(addDevice(after, exchanged));
    MissingBox box;
    QVERIFY(!after.loadResume(m_path));
}

void TestSaveAndLoad::secondDeviceOfAnAddressIsFoundByItsMac()
{
    TesselDoc before(nullptr);
    addDevices(before, 1);
    QVERIFY(setDeviceRoom(before, addressOf(0), 2));
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    FoundDevice other = foundDevice(0);
    other.macAddress = macOf(9);
    QVERIFY(addDevice(after, other));
    QVERIFY(addDevice(after, foundDevice(0)));
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(deviceAt(after, 0)->roomNumber, 0);
    QCOMPARE(deviceAt(after, 1)->roomNumber, 2);
}

void TestSaveAndLoad::aDeviceThatWasSavedTwiceKeepsItsRoomAndItsLabel_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("label");
    const QString placed = QStringLiteral("Label='A' Room='2' ModifiedLabel='1'");
    const QString elsewhere = QStringLiteral("Label='B' Room='3' ModifiedLabel='1'");
    const QString inNoRoom = QStringLiteral("Label='C' Room='0' ModifiedLabel='0'");
    QTest::newRow("the first in a room") << placed << inNoRoom << 2 << QStringLiteral("A");
    QTest::newRow("the second in a room") << inNoRoom << placed << 2 << QStringLiteral("A");
    QTest::newRow("both in rooms") << placed << elsewhere << 2 << QStringLiteral("A");
    QTest::newRow("none in a room") << inNoRoom << inNoRoom << 0 << QStringLiteral("device 0");
}

void TestSaveAndLoad::aDeviceThatWasSavedTwiceKeepsItsRoomAndItsLabel()
{
    QFETCH(const QString, first);
    QFETCH(const QString, second);
    const QString record = QStringLiteral("<DeviceData IP='%1' MacAddress='%2' Model='PX-HB' %3/>");
    TesselDoc doc(nullptr);
    addDevices(doc, 1);
    const QString records =
        record.arg(addressOf(0), macOf(0), first) + record.arg(addressOf(0), macOf(0), second);
    QVERIFY(doc.loadResume(
        writeInside(QStringLiteral("<DeviceDataList>%1</DeviceDataList>").arg(records))));
    QTEST(deviceAt(doc, 0)->roomNumber, "room");
    QTEST(deviceAt(doc, 0)->label, "label");
}

void TestSaveAndLoad::missingDevicesAreListedInFileOrder()
{
    TesselDoc before(nullptr);
    addDevices(before, 4);
    for (const int number : {0, 2, 3}) {
        QVERIFY(setDeviceRoom(before, addressOf(number), 1));
    }
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    QVERIFY(addDevice(after, foundDevice(2)));
    MissingBox box;
    QVERIFY(!after.loadResume(m_path));
    QCOMPARE(box.answerer.text(),
             missingIntroduction + QStringLiteral("Hostname:device 0,Model:PX-HB,IP=10.0.0.1\n"
                                                  "Hostname:device 3,Model:PX-DL,IP=10.0.0.4\n"));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.answerer.buttons(), QStringList(QStringLiteral("OK")));
    QVERIFY(!box.hasParent);
    QCOMPARE(deviceByAddress(after, addressOf(2))->roomNumber, 1);
}

void TestSaveAndLoad::missingDeviceInNoRoomIsForgotten()
{
    TesselDoc before(nullptr);
    addDevices(before, 3);
    QVERIFY(setDeviceRoom(before, addressOf(0), 1));
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    QVERIFY(addDevice(after, foundDevice(0)));
    const DialogAnswerer nothingIsTold;
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(deviceCount(after), 1);
}

void TestSaveAndLoad::textsOfMissingDevicesAreTakenLiterally()
{
    const QString text = missingDevicesText(
        {{QStringLiteral("%2 %1"), QStringLiteral("<b>"), QString(), QStringLiteral("%3"), 1}});
    QCOMPARE(text, missingIntroduction + QStringLiteral("Hostname:%2 %1,Model:%3,IP=<b>\n"));
    QVERIFY(!Qt::mightBeRichText(text));
}

void TestSaveAndLoad::messageOfAHostileFileStaysShort()
{
    const SavedDevice device{
        QString(5000, QLatin1Char('x')), QString(), QString(), QString(), 1, false};
    const QString text = missingDevicesText(QList<SavedDevice>(50'000, device));
    QVERIFY(text.size() < 200'000);
    QCOMPARE(text.count(QLatin1Char('\n')), 1002);
}

void TestSaveAndLoad::aHallFullOfMissingDevicesIsListedOnTheScreen()
{
    TesselDoc before(nullptr);
    addDevices(before, 250);
    for (int number = 0; number < 250; ++number) {
        QVERIFY(setDeviceRoom(before, addressOf(number), 1));
    }
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    MissingBox box;
    QVERIFY(!after.loadResume(m_path));
    QCOMPARE(box.answerer.text().count(QStringLiteral("Hostname:")), 250);
    QVERIFY(box.fitsOnScreen);
}

void TestSaveAndLoad::missingDevicesStopTheLoadThere()
{
    TesselDoc doc(nullptr);
    setRoomCells(doc, 4, {{0, 0}});
    QVERIFY(addPreset(doc, 9, 9, QStringLiteral("mine")));
    MissingBox box;
    QVERIFY(!doc.loadResume(writeInside(
        QStringLiteral("<RoomInfoList><RoomInfo Number='1' PosList='{1,1}'/></RoomInfoList>"
                       "<DeviceDataList><DeviceData IP='10.9.9.9' Room='1'/></DeviceDataList>"
                       "<PresetInfoList/>"))));
    QCOMPARE(roomCount(doc), 1);
    QCOMPARE(presetName(doc, 9, 9), QStringLiteral("mine"));
    QCOMPARE(pageIndex(doc), 3);
}

void TestSaveAndLoad::layoutsOfOneTextGetTheirOwnPictures()
{
    TesselDoc before(nullptr);
    QVERIFY(addLayout(before, {1, QStringLiteral("1+2"), picture(1)}));
    QVERIFY(addLayout(before, {2, QStringLiteral("1+2"), picture(2)}));
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(layoutAt(after, 1)->thumbnail.toImage(), picture(1).toImage());
    QCOMPARE(layoutAt(after, 2)->thumbnail.toImage(), picture(2).toImage());
}

void TestSaveAndLoad::pictureWithoutAMatchIsDropped()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.loadResume(
        writeInside(QStringLiteral("<SceneInfoList><SceneInfo Number='1' RoomGroup='1+2'/>"
                                   "<SceneInfo Number='2' RoomGroup='a'/></SceneInfoList>"),
                    {{7, QStringLiteral("1+2"), picture(7)},
                     {2, QStringLiteral("A"), picture(2)},
                     {1, QStringLiteral("1+2"), picture(1)}})));
    QCOMPARE(layoutCount(doc), 2);
    QCOMPARE(layoutAt(doc, 1)->thumbnail.toImage(), picture(1).toImage());
    QVERIFY(layoutAt(doc, 2)->thumbnail.isNull());
}

void TestSaveAndLoad::damagedTailCostsPicturesOnly()
{
    TesselDoc before(nullptr);
    fill(before, 3, 2, 3);
    QVERIFY(before.saveResume(m_path));
    const QByteArray bytes = bytesOf(m_path);
    QVERIFY(writeResumeFile(m_path, bytes.first(bytes.lastIndexOf("IHDR"))));
    TesselDoc after(nullptr);
    addDevices(after, 3);
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(layoutCount(after), 3);
    QCOMPARE(layoutAt(after, 2)->thumbnail.toImage(), picture(2).toImage());
    QVERIFY(layoutAt(after, 3)->thumbnail.isNull());
    QCOMPARE(presetName(after, 3, 3), presetName(before, 3, 3));
}

void TestSaveAndLoad::foreignRootLeavesTheDocumentUntouched()
{
    TesselDoc doc(nullptr);
    fill(doc, 3, 2, 2);
    const QString untouched = m_folder.filePath(QStringLiteral("untouched"));
    QVERIFY(doc.saveResume(untouched));
    const QByteArray before = bytesOf(untouched);
    for (const QString& xml :
         {QStringLiteral("<Other Page=\"1\"><RoomInfoList/></Other>"),
          QStringLiteral("<Tessel Page=\"x\"><RoomInfoList/></Tessel>"),
          QStringLiteral("<Tessel Page=\"9\"><RoomInfoList/></Tessel>"),
          QStringLiteral("<Tessel Page=\"1\"><RoomInfoList/></Tessel><"), QString()}) {
        QVERIFY(!doc.loadResume(writeXml(xml)));
        QVERIFY(doc.saveResume(untouched));
        QCOMPARE(bytesOf(untouched), before);
    }
}

void TestSaveAndLoad::foreignElementKeepsWhatCameBefore()
{
    TesselDoc doc(nullptr);
    fill(doc, 0, 2, 2);
    QVERIFY(!doc.loadResume(writeInside(
        QStringLiteral("<RoomInfoList><RoomInfo Number='3' PosList='{1,1}'/></RoomInfoList>"
                       "<SceneInfoList><SceneInfo Number='1' RoomGroup='1'/></SceneInfoList>"
                       "<Walls/><PresetInfoList/>"),
        {{1, QStringLiteral("1"), picture(1)}})));
    QCOMPARE(roomCount(doc), 3);
    QCOMPARE(layoutCount(doc), 1);
    QVERIFY(layoutAt(doc, 1)->thumbnail.isNull());
    QVERIFY(presetName(doc, 1, 1));
    QCOMPARE(pageIndex(doc), 3);
}

void TestSaveAndLoad::repeatedRecordsCountOnce()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.loadResume(writeInside(QStringLiteral(
        "<RoomInfoList><RoomInfo Number='1' PosList='{1,1}'/><RoomInfo Number='1'/></RoomInfoList>"
        "<SceneInfoList><SceneInfo Number='1' RoomGroup='a'/>"
        "<SceneInfo Number='1' RoomGroup='b'/></SceneInfoList>"
        "<DeviceSetInfoList><DeviceSetInfo IP='a' Remove='1'/><DeviceSetInfo IP='a'/>"
        "</DeviceSetInfoList>"
        "<PresetInfoList><PresetInfo PresetName='a'/><PresetInfo PresetName='b'/>"
        "</PresetInfoList>"))));
    QCOMPARE(roomCells(doc, 1), QList<QPoint>({{1, 1}}));
    QCOMPARE(layoutCount(doc), 1);
    QCOMPARE(layoutAt(doc, 1)->roomGroup, QStringLiteral("a"));
    QVERIFY(deviceSetRecord(doc, 0, 0, QStringLiteral("a"))->remove);
    QList<QVariantMap> presets;
    QVERIFY(doc.getDataList(DataKind::Preset, {}, presets));
    QCOMPARE(presets.size(), 1);
}

void TestSaveAndLoad::fileCutAtEveryLengthLeavesTheDocumentUsable()
{
    TesselDoc before(nullptr);
    fill(before, 2, 2, 2);
    QVERIFY(before.saveResume(m_path));
    const QByteArray bytes = bytesOf(m_path);
    TesselDoc after(nullptr);
    addDevices(after, 2);
    for (qsizetype length = 0; length <= bytes.size(); ++length) {
        QVERIFY(writeBytes(m_path, bytes.first(length)));
        const bool isLoaded = after.loadResume(m_path);
        QCOMPARE(layoutCount(after), isLoaded ? 2 : 0);
    }
    QVERIFY(after.saveResume(m_path));
    QCOMPARE(bytesOf(m_path), bytes);
}

void TestSaveAndLoad::unwritablePlaceIsTold()
{
    TesselDoc doc(nullptr);
    fill(doc, 2, 2, 2);
    QVERIFY(!doc.saveResume(m_folder.filePath(QStringLiteral("missing/resume.dat"))));
    QVERIFY(!doc.saveResume(m_folder.path()));
}

void TestSaveAndLoad::missingFileIsTold()
{
    TesselDoc doc(nullptr);
    QVERIFY(!doc.loadResume(m_path));
    QVERIFY(!doc.loadResume(m_folder.path()));
}

TESSEL_TEST_MAIN(TestSaveAndLoad)
#include "tst_saveandload.moc"
