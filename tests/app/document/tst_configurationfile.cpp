#include "configurationfile.h"
#include "devicequeries.h"
#include "dialoganswerer.h"
#include "documentfixtures.h"
#include "layoutqueries.h"
#include "presetqueries.h"
#include "resumefile.h"
#include "roomqueries.h"
#include "sessionqueries.h"
#include "setqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString hub = QStringLiteral("10.0.0.1");
const QString speaker = QStringLiteral("10.0.0.2");
const QString microphone = QStringLiteral("10.0.0.3");

FoundDevice deviceAtAddress(const QString& address)
{
    const QString model = address == hub       ? QStringLiteral("PX-HB")
                          : address == speaker ? QStringLiteral("DSK4M")
                                               : QStringLiteral("PX-DL");
    return testDevice(QStringLiteral("Device ") + address, model, address);
}

/// All three in room 1 and in both sets of it; the speaker on the right, the microphone removed
/// from the second.
void fill(TesselDoc& doc)
{
    drawRooms(doc, 2);
    addColouredLayout(doc, 1, QStringLiteral("1/2"), Qt::red);
    addColouredLayout(doc, 2, QStringLiteral("1+2"), Qt::blue);
    for (const QString& address : {hub, speaker, microphone}) {
        QVERIFY(addDevice(doc, deviceAtAddress(address)));
        QVERIFY(setDeviceRoom(doc, address, 1));
        QVERIFY(addToDeviceSet(doc, 1, 1, address, false));
        QVERIFY(addToDeviceSet(doc, 3, 2, address, address == microphone));
    }
    QVERIFY(setSpeakerPosition(doc, 3, 2, speaker, QStringLiteral("R")));
    QVERIFY(addPreset(doc, 3, 2, QStringLiteral("Whole hall")));
    setPageIndex(doc, 7);
    setWindowSize(doc, {900, 700});
}

bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// A file of the user's own, read into a document.
class TestConfigurationFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whereEveryDeviceIsThereAllOfItComesBack();
    void aMissingDeviceIsToldOfAndAllTheRestIsTaken();
    void aDeviceAtTheAddressOfAMissingOneTakesItsPlacesInTheSets();
    void aMissingDeviceOfNoRoomIsNotToldOf();
    void whatCannotBeOpenedSaysWhyAndLeavesTheDocumentAsItIs_data();
    void whatCannotBeOpenedSaysWhyAndLeavesTheDocumentAsItIs();
    void whatWouldBeLeftOutInsideAListIsAFault_data();
    void whatWouldBeLeftOutInsideAListIsAFault();
    void moreLayoutsThanAreReadAreAFault();
    void whatIsWrittenInAnotherWayIsNoFault();
    void whateverNamesHoldTheFileIsWhole();
    void thePathIsKnownWhereverTheProgramWorks();
    void readingLeavesTheFileAsItIs();

private:
    QTemporaryDir m_folder;
    QString m_path;
};

void TestConfigurationFile::init()
{
    TestCase::init();
    m_path = m_folder.filePath(QStringLiteral("hall.tessel"));
    QDir(m_path).removeRecursively();
    QFile::remove(m_path);
    TesselDoc doc(nullptr);
    fill(doc);
    QVERIFY(doc.saveResume(m_path));
}

void TestConfigurationFile::whereEveryDeviceIsThereAllOfItComesBack()
{
    TesselDoc doc(nullptr);
    for (const QString& address : {hub, speaker, microphone}) {
        QVERIFY(addDevice(doc, deviceAtAddress(address)));
    }
    ConfigurationFile file(&doc, m_path);
    QVERIFY(file.read());
    QVERIFY(file.load());
    QCOMPARE(pageIndex(doc), 7);
    QCOMPARE(windowSize(doc), QSize(900, 700));
    QCOMPARE(devicesInRoom(doc, 1).size(), 3);
    QVERIFY(deviceSetRecord(doc, 3, 2, microphone)->remove);
    const QString again = m_folder.filePath(QStringLiteral("again.tessel"));
    QVERIFY(doc.saveResume(again));
    QCOMPARE(bytesOf(again), bytesOf(m_path));
}

void TestConfigurationFile::aMissingDeviceIsToldOfAndAllTheRestIsTaken()
{
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, deviceAtAddress(hub)));
    QVERIFY(addDevice(doc, deviceAtAddress(speaker)));
    ConfigurationFile file(&doc, m_path);
    QVERIFY(file.read());
    const DialogAnswerer told("Missing device", pressing("OK"));
    QVERIFY(!file.load());
    QVERIFY2(
        told.text().endsWith(QStringLiteral("Hostname:Device 10.0.0.3,Model:PX-DL,IP=10.0.0.3\n")),
        qPrintable(told.text()));
    QCOMPARE(roomCount(doc), 2);
    QCOMPARE(devicesInRoom(doc, 1).size(), 2);
    QCOMPARE(layoutCount(doc), 2);
    QCOMPARE(layoutAt(doc, 2)->thumbnail.toImage().pixelColor(9, 9), QColor(Qt::blue));
    QCOMPARE(deviceSetRecord(doc, 3, 2, speaker)->speakerPosition, QStringLiteral("R"));
    QVERIFY(deviceSetRecord(doc, 1, 1, hub));
    QVERIFY2(!deviceSetRecord(doc, 1, 1, microphone), "a set of a device that is not there");
    QVERIFY(!deviceSetRecord(doc, 3, 2, microphone));
    QCOMPARE(presetName(doc, 3, 2), QStringLiteral("Whole hall"));
    QCOMPARE(windowSize(doc), QSize(900, 700));
}

void TestConfigurationFile::aDeviceAtTheAddressOfAMissingOneTakesItsPlacesInTheSets()
{
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, deviceAtAddress(hub)));
    FoundDevice swapped = deviceAtAddress(speaker);
    swapped.macAddress = QStringLiteral("02:00:00:00:00:99");
    QVERIFY(addDevice(doc, swapped));
    QVERIFY(addDevice(doc, deviceAtAddress(microphone)));
    ConfigurationFile file(&doc, m_path);
    QVERIFY(file.read());
    const DialogAnswerer told("Missing device", pressing("OK"));
    QVERIFY(!file.load());
    QCOMPARE(deviceByAddress(doc, speaker)->roomNumber, 0);
    QCOMPARE(deviceSetRecord(doc, 3, 2, speaker)->speakerPosition, QStringLiteral("R"));
}

void TestConfigurationFile::aMissingDeviceOfNoRoomIsNotToldOf()
{
    TesselDoc before(nullptr);
    fill(before);
    QVERIFY(setDeviceRoom(before, microphone, 0));
    QVERIFY(before.saveResume(m_path));
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, deviceAtAddress(hub)));
    QVERIFY(addDevice(doc, deviceAtAddress(speaker)));
    ConfigurationFile file(&doc, m_path);
    QVERIFY(file.read());
    QVERIFY(file.load());
    QVERIFY(!deviceSetRecord(doc, 1, 1, microphone));
}

void TestConfigurationFile::whatCannotBeOpenedSaysWhyAndLeavesTheDocumentAsItIs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto bytesOfXml = [](const char* xml) {
        return packResumeFile({QString::fromLatin1(xml), {}});
    };
    const auto row = [](const char* name, const QByteArray& bytes, const QString& reason) {
        QTest::newRow(name) << bytes << reason;
    };
    const QByteArray whole = bytesOf(m_path);
    // In the system's own words.
    QFile none(m_folder.filePath(QStringLiteral("none")));
    QVERIFY(!none.open(QIODevice::ReadOnly));
    const QString words = none.errorString();
    row("no such file", {}, words.endsWith(u'.') ? words.chopped(1) : words);
    row("any text", "not a configuration",
        QStringLiteral("byte 1: this is no configuration of a hall"));
    row("another root", bytesOfXml("<Other Page='1'/>"),
        QStringLiteral("line 1 of its text: this is no configuration of a hall"));
    row("no page of the wizard", bytesOfXml("<Tessel Page='99'/>"),
        QStringLiteral("line 1 of its text: it names no page of the wizard, or nests too deeply"));
    row("too large", QByteArray(8 * 1024 * 1024 + 1, 'x'),
        QStringLiteral("it is larger than any configuration of a hall"));
    row("of a later version",
        bytesOfXml("<Tessel Page='7'><RoomInfoList><RoomInfo Number='1' PosList='{0,0}'/>"
                   "</RoomInfoList><CurtainList/></Tessel>"),
        QStringLiteral("line 1 of its text: it holds something that this version does not know"));
    row("tags that do not match", bytesOfXml("<Tessel Page='7'>\n<RoomInfoList></Tessel>"),
        QStringLiteral("line 2 of its text: Opening and ending tag mismatch"));
    row("cut in its text", whole.first(100),
        QStringLiteral("byte 100: the file ends here, in the middle of its text"));
    row("cut in its pictures", whole.chopped(1),
        QStringLiteral("picture 2 of 2: it is cut or damaged"));
    row("longer than it should be", whole + "x",
        QStringLiteral("byte %1: something follows its pictures").arg(whole.size() + 1));
}

void TestConfigurationFile::whatCannotBeOpenedSaysWhyAndLeavesTheDocumentAsItIs()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    QVERIFY(QFile::remove(m_path));
    QVERIFY(bytes.isEmpty() || writeBytes(m_path, bytes));
    TesselDoc doc(nullptr);
    ConfigurationFile file(&doc, m_path);
    QVERIFY(!file.read());
    QCOMPARE(file.fault(), reason);
    QVERIFY(file.holdsMore());
    QCOMPARE(roomCount(doc), 0);
    QCOMPARE(pageIndex(doc), 0);
}

void TestConfigurationFile::whatWouldBeLeftOutInsideAListIsAFault_data()
{
    QTest::addColumn<QString>("good");
    QTest::addColumn<QString>("bad");
    const auto row = [](const char* name, const char* good, const char* bad) {
        QTest::newRow(name) << QString::fromLatin1(good) << QString::fromLatin1(bad);
    };
    row("another element than a device", "<DeviceData ", "<GatewayData ");
    row("another element than a room", "<RoomInfo ", "<RoomInfoX ");
    row("another element than a layout", "<SceneInfo ", "<Scene ");
    row("an unknown attribute of a device", " MacAddress=", " MacAdress=");
    row("one more attribute of a device", " MacAddress=", " Floor=\"3\" MacAddress=");
    row("an attribute of a list", "<RoomInfoList", "<RoomInfoList Floor=\"3\"");
    row("an attribute of the root", "<Tessel ", "<Tessel Version=\"9\" ");
    row("an impossible room of a device", " Room=\"1\"", " Room=\"9\"");
    row("no number", " Room=\"1\"", " Room=\"one\"");
    row("an impossible room", "<RoomInfo Number=\"2\"", "<RoomInfo Number=\"5\"");
    row("a cell off the grid", "{0,0}", "{0,8}");
    row("neither yes nor no", " Remove=\"1\"", " Remove=\"true\"");
    row("an impossible window", " Width=\"900\"", " Width=\"-900\"");
    row("a text", "<RoomInfoList>", "more<RoomInfoList>");
    row("an element in a room", "{1,7}\"/>", "{1,7}\"><Door/></RoomInfo>");
}

void TestConfigurationFile::whatWouldBeLeftOutInsideAListIsAFault()
{
    QFETCH(const QString, good);
    QFETCH(const QString, bad);
    ResumeFile content = *unpackResumeFile(bytesOf(m_path));
    const qsizetype place = content.xml.indexOf(good);
    QVERIFY2(place >= 0, qPrintable(content.xml));
    content.xml.replace(place, good.size(), bad);
    QVERIFY(writeBytes(m_path, packResumeFile(content)));
    TesselDoc doc(nullptr);
    ConfigurationFile file(&doc, m_path);
    QVERIFY(!file.read());
    QCOMPARE(file.fault(),
             QStringLiteral("line %1 of its text: it holds something that this version does not "
                            "know")
                 .arg(content.xml.first(place).count(u'\n') + 1));
    QVERIFY(file.holdsMore());
}

void TestConfigurationFile::moreLayoutsThanAreReadAreAFault()
{
    ResumeFile content = *unpackResumeFile(bytesOf(m_path));
    content.xml.replace(QStringLiteral(" </SceneInfoList>"),
                        QStringLiteral("<SceneInfo Number=\"3\" RoomGroup=\"1\"/>").repeated(99) +
                            QStringLiteral(" </SceneInfoList>"));
    QVERIFY(writeBytes(m_path, packResumeFile(content)));
    TesselDoc doc(nullptr);
    ConfigurationFile file(&doc, m_path);
    QVERIFY(!file.read());
}

void TestConfigurationFile::whatIsWrittenInAnotherWayIsNoFault()
{
    const char* text = "<?xml version='1.0'?><!-- of an earlier version -->\n\n"
                       "<Tessel   Page='7'><RoomInfoList><RoomInfo PosList='&#123;0,0}' Number='1'>"
                       "</RoomInfo></RoomInfoList><DeviceSetInfoList>\n<DeviceSetInfo IP='10.0.0.1'"
                       " SceneNumber='1' DeviceSetNumber='1'/></DeviceSetInfoList></Tessel>";
    QVERIFY(writeBytes(m_path, packResumeFile({QString::fromLatin1(text), {}})));
    TesselDoc doc(nullptr);
    ConfigurationFile file(&doc, m_path);
    QVERIFY2(file.read(), qPrintable(file.fault()));
}

void TestConfigurationFile::whateverNamesHoldTheFileIsWhole()
{
    TesselDoc before(nullptr);
    FoundDevice odd = deviceAtAddress(hub);
    for (char16_t unit = 0; unit < 0x100; ++unit) {
        odd.label += QChar(unit);
    }
    odd.label += QString::fromUcs4(U"\U0001F50A") + QChar(0xD800) + QChar(0xFFFE);
    odd.macAddress = QStringLiteral(" \t\r\n ");
    QVERIFY(addDevice(before, odd));
    QVERIFY(before.saveResume(m_path));
    TesselDoc doc(nullptr);
    ConfigurationFile file(&doc, m_path);
    QVERIFY2(file.read(), qPrintable(file.fault()));
}

void TestConfigurationFile::thePathIsKnownWhereverTheProgramWorks()
{
    TesselDoc doc(nullptr);
    const ConfigurationFile file(&doc, QStringLiteral("hall.tessel"));
    QCOMPARE(file.path(), QDir::currentPath() + QStringLiteral("/hall.tessel"));
}

void TestConfigurationFile::readingLeavesTheFileAsItIs()
{
    const QByteArray before = bytesOf(m_path);
    TesselDoc doc(nullptr);
    ConfigurationFile file(&doc, m_path);
    QVERIFY(file.read());
    const DialogAnswerer told("Missing device", pressing("OK"));
    QVERIFY(!file.load());
    QCOMPARE(bytesOf(m_path), before);
}

TESSEL_TEST_MAIN(TestConfigurationFile)
#include "tst_configurationfile.moc"
