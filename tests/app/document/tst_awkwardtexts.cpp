#include "devicequeries.h"
#include "documentfixtures.h"
#include "presetqueries.h"
#include "resumefile.h"
#include "roomqueries.h"
#include "setqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// "a", the code units, "b".
QString around(std::initializer_list<char16_t> units)
{
    QString text = QStringLiteral("a");
    for (const char16_t unit : units) {
        text.append(QChar(unit));
    }
    return text + QLatin1Char('b');
}

/// A row whose text comes back as it is.
void kept(const char* name, const QString& text)
{
    QTest::newRow(name) << text << text;
}

/// A row whose text comes back as "ab".
void leftOut(const char* name, const QString& text)
{
    QTest::newRow(name) << text << QStringLiteral("ab");
}

void addMarkupRows()
{
    kept("nothing", QString());
    kept("300 equals signs before apostrophes", QStringLiteral("='").repeated(300));
    kept("300 equals signs before quotes", QStringLiteral("=\"").repeated(300));
    kept("300 attributes", QStringLiteral(" k = \n'v'").repeated(300));
    kept("an end of an element", QStringLiteral("\"/></DeviceDataList></Tessel>"));
    kept("less, greater, and", QStringLiteral("<<a>> && &amp; &#1; &unknown; </a>"));
    kept("an end of a section", QStringLiteral("]]>"));
    kept("a section", QStringLiteral("<![CDATA[x]]>"));
    kept("a comment", QStringLiteral("<!-- x -- y -->"));
    kept("an instruction", QStringLiteral("<?xml version='1.0'?>"));
    kept("a document type", QStringLiteral("<!DOCTYPE a [<!ENTITY e 'x'>]>"));
    kept("backslashes and percents", QStringLiteral("\\n \\\" %1 %2 %"));
    kept("separators of the file", QStringLiteral("{1,2}/{3,4}+5//"));
}

void addWhiteSpaceRows()
{
    kept("blanks around", QStringLiteral("  a  b  "));
    kept("a blank", QStringLiteral(" "));
    kept("white space", QStringLiteral("\ta\n\nb\r\nc\rd\n\re\t"));
    kept("other separators", around({0x00A0, 0x0085, 0x2028, 0x2029, 0xFEFF}));
}

void addUnicodeRows()
{
    kept("letters", QStringLiteral("Süd – Größe ½ 会議室"));
    kept("beyond the base plane", QStringLiteral("\U0001F3A4\U0010FFFF"));
    kept("delete", around({0x007F, 0x0080, 0x009F}));
    kept("near the surrogates", around({0xD7FF, 0xE000, 0xFFFD}));
    for (char16_t unit = 0; unit < 0x20; ++unit) {
        if (unit != u'\t' && unit != u'\n' && unit != u'\r') {
            leftOut(qPrintable(QStringLiteral("control character %1").arg(int(unit))),
                    around({unit}));
        }
    }
    leftOut("no characters", around({0xFFFE, 0xFFFF}));
    leftOut("a high surrogate alone", around({0xD83C}));
    leftOut("a low surrogate alone", around({0xDFA4}));
    leftOut("surrogates in the wrong order", around({0xDFA4, 0xD83C}));
    leftOut("surrogates apart", around({0xD83C, 1, 0xDFA4}));
    QTest::newRow("a surrogate at the end") << QString(QChar(0xD83C)) << QString();
}

void addLongRows()
{
    kept("long", QStringLiteral("0123456789").repeated(30'000));
    kept("many ands", QStringLiteral("&").repeated(50'000));
    kept("many quotes", QStringLiteral("'\"").repeated(20'000));
    kept("many line feeds", QStringLiteral("\n").repeated(50'000));
}

} // namespace

/// What a user, a device or another program can put into a text, the wizard saves so that its next
/// start takes the file. What the file cannot carry is left out of it.
class TestAwkwardTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void labelsAndPresetNamesComeBack_data();
    void labelsAndPresetNamesComeBack();
    void devicesAreKnownAgainByTheirAddressesAndModels_data();
    void devicesAreKnownAgainByTheirAddressesAndModels();
    void twoAddressesThatAreSavedAlikeDoNotStopTheLoad();
    void aTextTooLongForTheFileIsNotSaved();

private:
    QTemporaryDir m_folder;
    QString m_path;
};

void TestAwkwardTexts::init()
{
    TestCase::init();
    m_path = m_folder.filePath(QStringLiteral("resume.dat"));
    QFile::remove(m_path);
}

void TestAwkwardTexts::labelsAndPresetNamesComeBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    addMarkupRows();
    addWhiteSpaceRows();
    addUnicodeRows();
    addLongRows();
}

void TestAwkwardTexts::labelsAndPresetNamesComeBack()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    const FoundDevice hub =
        testDevice(QStringLiteral("hub"), QStringLiteral("PX-HB"), QStringLiteral("10.0.0.1"));
    TesselDoc before(nullptr);
    QVERIFY(addDevice(before, hub) && setDeviceLabel(before, hub.ipAddress, text));
    QVERIFY(addPreset(before, 1, 1, text) && addPreset(before, 2, 1, QStringLiteral("next")));
    QVERIFY(before.saveResume(m_path));
    const QByteArray saved = bytesOf(m_path);

    TesselDoc after(nullptr);
    QVERIFY(addDevice(after, hub));
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(deviceAt(after, 0)->label, expected);
    QCOMPARE(presetName(after, 1, 1), expected);
    QCOMPARE(presetName(after, 2, 1), QStringLiteral("next"));
    QVERIFY(after.saveResume(m_path));
    QCOMPARE(bytesOf(m_path), saved);
}

void TestAwkwardTexts::devicesAreKnownAgainByTheirAddressesAndModels_data()
{
    labelsAndPresetNamesComeBack_data();
}

void TestAwkwardTexts::devicesAreKnownAgainByTheirAddressesAndModels()
{
    QFETCH(const QString, text);
    FoundDevice odd = testDevice(QStringLiteral("odd"), QStringLiteral("PX-DL") + text,
                                 text + QStringLiteral("10.0.0.1"));
    odd.macAddress = QStringLiteral("a0") + text;
    TesselDoc before(nullptr);
    QVERIFY(addDevice(before, odd) && setDeviceRoom(before, odd.ipAddress, 3));
    QVERIFY(addToDeviceSet(before, 2, 1, odd.ipAddress, true));
    QVERIFY(setSpeakerPosition(before, 2, 1, odd.ipAddress, QStringLiteral("R")));
    QVERIFY(before.saveResume(m_path));

    TesselDoc after(nullptr);
    QVERIFY(addDevice(after, odd));
    QVERIFY(after.loadResume(m_path));
    QCOMPARE(deviceAt(after, 0)->roomNumber, 3);
    const std::optional<DeviceSetInfo> record = deviceSetRecord(after, 2, 1, odd.ipAddress);
    QVERIFY(record && record->remove);
    QCOMPARE(record->speakerPosition, QStringLiteral("R"));
}

void TestAwkwardTexts::twoAddressesThatAreSavedAlikeDoNotStopTheLoad()
{
    const auto add = [](TesselDoc& doc, const QString& address) {
        return addDevice(doc, testDevice(QStringLiteral("x"), QStringLiteral("PX-DL"), address));
    };
    const QString odd = around({1});
    TesselDoc before(nullptr);
    QVERIFY(add(before, odd) && setDeviceRoom(before, odd, 1));
    QVERIFY(add(before, QStringLiteral("ab")) && setDeviceRoom(before, QStringLiteral("ab"), 2));
    QVERIFY(before.saveResume(m_path));
    TesselDoc after(nullptr);
    QVERIFY(add(after, odd) && add(after, QStringLiteral("ab")));
    QVERIFY(after.loadResume(m_path));
}

void TestAwkwardTexts::aTextTooLongForTheFileIsNotSaved()
{
    TesselDoc doc(nullptr);
    setRoomCells(doc, 1, {{0, 0}});
    QVERIFY(doc.saveResume(m_path));
    const QByteArray saved = bytesOf(m_path);
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("&").repeated(1'000'000)));
    QVERIFY(!doc.saveResume(m_path));
    QCOMPARE(bytesOf(m_path), saved);
}

TESSEL_TEST_MAIN(TestAwkwardTexts)
#include "tst_awkwardtexts.moc"
