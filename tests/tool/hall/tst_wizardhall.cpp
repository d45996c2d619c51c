#include "configure.h"
#include "createpreset.h"
#include "createscene.h"
#include "dantespeaker.h"
#include "devicequeries.h"
#include "documentfixtures.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "halljson.h"
#include "setqueries.h"
#include "tesselbutton.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QFile>
#include <QJsonDocument>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void enterDevices(IDocAccessor& doc)
{
    enterHall(
        doc,
        {.rooms = 3,
         .devices = {
             {QStringLiteral("Hub-1"), QStringLiteral("PX-HB"), QStringLiteral("127.0.1.1"), 1},
             {QStringLiteral("Mic-1"), QStringLiteral("PX-DL"), QStringLiteral("127.0.1.2"), 1},
             {QStringLiteral("Speaker-2"), QStringLiteral("LQA4-08S"), QStringLiteral("127.0.1.3"),
              2},
             {QStringLiteral("Hub-2"), QStringLiteral("PX-HB"), QStringLiteral("127.0.1.4"), 2},
             {QStringLiteral("Hub-3"), QStringLiteral("PX-HB"), QStringLiteral("127.0.1.5"), 3},
             {QStringLiteral("Spare"), QStringLiteral("PNB-QE7"), QStringLiteral("127.0.1.6"),
              0}}});
    QVERIFY(setDeviceLabel(doc, QStringLiteral("127.0.1.4"), QStringLiteral("Renamed")));
}

/// Two layouts, one of them with the first two rooms combined.
void makeLayouts(IDocAccessor& doc)
{
    CreateScene step(&doc, nullptr);
    step.load();
    auto* add = step.findChild<QPushButton*>(QStringLiteral("addLayoutButton"));
    QTest::mouseClick(add, Qt::LeftButton);
    QTest::mouseClick(step.findChild<TesselButton*>(), Qt::LeftButton);
    QTest::mouseClick(add, Qt::LeftButton);
    step.store();
}

template <typename Step>
void passThrough(IDocAccessor& doc)
{
    Step step(&doc, nullptr);
    step.load();
    step.store();
}

} // namespace

/// Halls that the wizard's own steps have stored, as the tool reads them.
class TestWizardHall : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aHallOfTheWizardGoesThereAndBackUnchanged();
    void itsPicturesFollowFromItsRooms();
};

void TestWizardHall::aHallOfTheWizardGoesThereAndBackUnchanged()
{
    TesselDoc doc(nullptr);
    enterDevices(doc);
    makeLayouts(doc);
    passThrough<Configure>(doc);
    passThrough<DanteSpeaker>(doc);
    QVERIFY(setSpeakerPosition(doc, 2, 1, QStringLiteral("127.0.1.3"), QStringLiteral("R")));
    passThrough<CreatePreset>(doc);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("hall.tessel"));
    QVERIFY(doc.saveResume(path));

    const HallReading reading = readHallFile(path);
    QVERIFY2(reading.hall != nullptr, qPrintable(reading.fault));
    QCOMPARE(packHall(reading.hall->data()), bytesOf(path));
    const QJsonObject json = writeHallJson(reading.hall->data());
    QVERIFY2(!json.contains(QStringLiteral("exact")), QJsonDocument(json).toJson().constData());
    const HallJsonReading back = readHallJson(QJsonDocument(json).toJson());
    QCOMPARE(back.faults, QStringList());
    QCOMPARE(packHall(back.hall->data()), bytesOf(path));
}

void TestWizardHall::itsPicturesFollowFromItsRooms()
{
    TesselDoc doc(nullptr);
    enterDevices(doc);
    makeLayouts(doc);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("hall.tessel"));
    QVERIFY(doc.saveResume(path));
    const HallReading reading = readHallFile(path);
    QVERIFY(reading.hall != nullptr);
    const QJsonObject json = writeHallJson(reading.hall->data());
    QVERIFY2(!json.contains(QStringLiteral("exact")), QJsonDocument(json).toJson().constData());
    QVERIFY(json.contains(QStringLiteral("not-chosen")));
}

TESSEL_TEST_MAIN(TestWizardHall)
#include "tst_wizardhall.moc"
