#include "commandrun.h"
#include "hallfile.h"
#include "halljson.h"
#include "resumefile.h"
#include "testcase.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray sampleBytes()
{
    const HallJsonReading reading = readHallJson(sampleHallText());
    return reading.hall != nullptr ? packHall(reading.hall->data()) : QByteArray();
}

/// A file of this text and nothing behind it.
QByteArray fileOf(const char* text)
{
    return packResumeFile({QString::fromUtf8(text), {}});
}

} // namespace

/// Configuration files: reading them strictly, and writing them.
class TestHallFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyDeviceOfTheFileIsThere();
    void aHallIsWrittenAsItWasRead();
    void whatIsNoHallIsRefusedWithPlaceAndReason_data();
    void whatIsNoHallIsRefusedWithPlaceAndReason();
    void aFileCutAnywhereIsRefused();
    void bytesBehindThePicturesAreRefused();
    void missingFilesAndFoldersAreToldApart();
    void whatCannotBeWrittenLeavesTheFormerFile();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

void TestHallFile::everyDeviceOfTheFileIsThere()
{
    putFile(path("hall.tessel"), sampleBytes());
    const HallReading reading = readHallFile(path("hall.tessel"));
    QVERIFY2(reading.hall != nullptr, qPrintable(reading.fault));
    const QList<DeviceData>& devices = reading.hall->data().devices.all();
    QCOMPARE(devices.size(), 8);
    QCOMPARE(devices.first().label, QStringLiteral("Hub-1"));
    QVERIFY(devices.first().labelModified);
    QCOMPARE(devices.first().macAddress, QStringLiteral("02:1A:FF:00:00:01"));
    QCOMPARE(devices.at(6).roomNumber, 2);
    QCOMPARE(devices.last().roomNumber, 0);
}

void TestHallFile::aHallIsWrittenAsItWasRead()
{
    const QByteArray bytes = sampleBytes();
    putFile(path("hall.tessel"), bytes);
    const HallReading reading = readHallFile(path("hall.tessel"));
    QVERIFY(reading.hall != nullptr);
    QCOMPARE(writeHallFile(path("again.tessel"), reading.hall->data()), QString());
    QCOMPARE(fileAt(path("again.tessel")), bytes);
}

void TestHallFile::whatIsNoHallIsRefusedWithPlaceAndReason_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& bytes, const char* reason) {
        QTest::newRow(name) << bytes << QString::fromLatin1(reason);
    };
    row("empty", {}, "the file is empty");
    row("three bytes", "abc", "byte 1: this is no configuration");
    row("another format", "%PDF-1.7 and so on and so forth", "byte 1: this is no configuration");
    row("its own JSON", sampleHallText(), "byte 1: this is no configuration");
    row("another root", fileOf("<Other Page=\"1\"/>"),
        "line 1 of its text: this is no configuration");
    row("no page", fileOf("<Tessel/>"), "line 1 of its text: it names no page");
    row("a page beyond the last", fileOf("<Tessel Page=\"9\"/>"), "it names no page");
    row("damaged text", fileOf("<Tessel Page=\"1\">\n<RoomInfoList>\n</Tessel>"),
        "line 3 of its text");
    row("a document type", fileOf("<!DOCTYPE a [<!ENTITY b \"c\">]><Tessel Page=\"1\"/>"),
        "this is no configuration");
    row("foreign element", fileOf("<Tessel Page=\"1\"><Later/></Tessel>"),
        "line 1 of its text: it holds something that this version does not know");
    row("a device of another name",
        fileOf("<Tessel Page=\"1\">\n<DeviceDataList>\n<GatewayData IP=\"10.0.0.1\"/>\n"
               "</DeviceDataList></Tessel>"),
        "line 3 of its text: it holds something that this version does not know");
}

void TestHallFile::whatIsNoHallIsRefusedWithPlaceAndReason()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    putFile(path("bad.tessel"), bytes);
    const HallReading reading = readHallFile(path("bad.tessel"));
    QVERIFY(reading.hall == nullptr);
    QVERIFY2(reading.fault.startsWith(path("bad.tessel") + QStringLiteral(": ")),
             qPrintable(reading.fault));
    QVERIFY2(reading.fault.contains(reason), qPrintable(reading.fault));
}

void TestHallFile::aFileCutAnywhereIsRefused()
{
    const QByteArray bytes = sampleBytes();
    for (qsizetype length = 0; length < bytes.size(); length += 97) {
        putFile(path("cut.tessel"), bytes.first(length));
        const HallReading reading = readHallFile(path("cut.tessel"));
        QVERIFY2(reading.hall == nullptr, qPrintable(QString::number(length)));
        QVERIFY(!reading.fault.isEmpty());
    }
    putFile(path("cut.tessel"), bytes.chopped(1));
    QVERIFY2(
        readHallFile(path("cut.tessel")).fault.contains(u"picture 2 of 2: it is cut or damaged"),
        qPrintable(readHallFile(path("cut.tessel")).fault));
}

void TestHallFile::bytesBehindThePicturesAreRefused()
{
    for (const QByteArray& bytes : {sampleBytes(), packHall(DocumentData())}) {
        putFile(path("longer.tessel"), bytes + "xx\n");
        const HallReading reading = readHallFile(path("longer.tessel"));
        QVERIFY(reading.hall == nullptr);
        QCOMPARE(reading.fault, QStringLiteral("%1: byte %2: something follows its pictures")
                                    .arg(path("longer.tessel"))
                                    .arg(bytes.size() + 1));
    }
}

void TestHallFile::missingFilesAndFoldersAreToldApart()
{
    QVERIFY(readHallFile(path("none.tessel")).fault.contains(wordsForMissingFile()));
    QVERIFY(readHallFile(m_folder.path()).fault.contains(u"this is a folder"));
}

void TestHallFile::whatCannotBeWrittenLeavesTheFormerFile()
{
    const HallJsonReading reading = readHallJson(sampleHallText());
    QVERIFY(reading.hall != nullptr);
    const QString fault = writeHallFile(path("no/such/folder.tessel"), reading.hall->data());
    QVERIFY2(fault.startsWith(path("no/such/folder.tessel: ")), qPrintable(fault));
    QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("folder.tessel")));
    QVERIFY(!writeHallFile(path("folder.tessel"), reading.hall->data()).isEmpty());
    QVERIFY(QDir(path("folder.tessel")).exists());
}

TESSEL_TEST_MAIN(TestHallFile)
#include "tst_hallfile.moc"
