#include "configurationfile.h"
#include "devicequeries.h"
#include "dialoganswerer.h"
#include "layoutqueries.h"
#include "mainwindow.h"
#include "presetqueries.h"
#include "roomqueries.h"
#include "sessionqueries.h"
#include "setqueries.h"
#include "testcase.h"
#include "windowevents.h"
#include "wizarduser.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace {

const QString hubA = QStringLiteral("Hub-A");
const QString rightSpeaker = QStringLiteral("Right");
const QByteArray otherWork("the work of another day");

QString resumePath()
{
    return QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel/resume.dat");
}

QString folder()
{
    return QDir::homePath() + QStringLiteral("/halls");
}

QString path()
{
    return folder() + QStringLiteral("/old hall.tessel");
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

/// The work of an installer who has come as far as this step, in the file.
QByteArray saveHall(int step)
{
    WizardUser before;
    before.open();
    before.workThrough(step);
    before.closeAndSave();
    QDir().mkpath(folder());
    QFile::remove(path());
    QFile::rename(resumePath(), path());
    return bytesOf(path());
}

/// The speaker "Right" was exchanged: the new one has another MAC address.
FoundDevice exchangedSpeaker(const QString& address)
{
    return {.label = QStringLiteral("New"),
            .modelName = QStringLiteral("DSK4M"),
            .version = QStringLiteral("2.1.0"),
            .ipAddress = address,
            .macAddress = QStringLiteral("02:00:00:00:00:99"),
            .searchType = {},
            .password = {}};
}

/// An installer who opens the file, where some devices may be gone.
struct Opened
{
    explicit Opened(const QStringList& without = {})
        : user(without)
    {
    }

    void open() { user.open(&file); }
    /// As if every hub were done with what is entered; then some pages on.
    void endAsInstalled(int pagesOn) const
    {
        user.window->setInstallDone(true);
        for (int page = 0; page < pagesOn; ++page) {
            user.window->next();
        }
    }
    void close(const char* button) const
    {
        const DialogAnswerer question("Save Information?", pressing(button));
        QVERIFY(user.window->close());
    }

    WizardUser user;
    ConfigurationFile file{&user.doc, path()};
};

} // namespace

/// The wizard started with a file of the user's own.
class TestOpenedFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void withAnInterfaceHandedOverTheFileIsShownAtOnce_data();
    void withAnInterfaceHandedOverTheFileIsShownAtOnce();
    void theFileOpensBehindPleaseWait();
    void yesOnClosingSavesIntoTheFile();
    void withoutYesTheFileStaysAsItIs();
    void whatWasInstalledIsOfferedToTheFileThatHoldsSomethingElse_data();
    void whatWasInstalledIsOfferedToTheFileThatHoldsSomethingElse();
    void afterAnInstallationOfTheFileAsItWasNothingIsAsked();
    void aMissingDeviceIsToldOfAndTheThirdStepOpensWithTheRest();
    void theWayOnFromAMissingDeviceMakesWholeSets();
    void aNewDeviceAtTheOldAddressKeepsItsRemovals();
    void aFileThatCannotBeReadIsToldOnceAndTheGridIsEmpty();
    void ofAFileThatIsNotWholeNothingIsTaken_data();
    void ofAFileThatIsNotWholeNothingIsTaken();
    void whatIsSavedThenGoesBesideTheUnreadableFile();
    void aFileThatIsNotThereIsToldAndMadeOnYes();
    void aFileThatWasOpenedWithoutADeviceStaysAndTheNewOneIsBesideIt();
    void aFileThatCannotBeWrittenIsToldAndTheWindowStays();

private:
    void checkResumeFile();
};

void TestOpenedFile::init()
{
    TestCase::init();
}

void TestOpenedFile::cleanup()
{
    QDir(QDir::homePath() + QStringLiteral("/AppData")).removeRecursively();
    QDir(folder()).removeRecursively();
}

void TestOpenedFile::checkResumeFile()
{
    QCOMPARE(bytesOf(resumePath()), otherWork);
}

void TestOpenedFile::withAnInterfaceHandedOverTheFileIsShownAtOnce_data()
{
    QTest::addColumn<int>("step");
    for (int step = 2; step <= 8; ++step) {
        QTest::addRow("step %d", step) << step;
    }
}

void TestOpenedFile::withAnInterfaceHandedOverTheFileIsShownAtOnce()
{
    QFETCH(const int, step);
    WizardUser before;
    before.open();
    before.workThrough(step);
    const QList<QStringList> shown = before.shownUpTo(step);
    before.closeAndSave();
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(QFile::rename(resumePath(), path()));
    const QByteArray bytes = bytesOf(path());
    QVERIFY(writeBytes(resumePath(), otherWork));

    Opened again;
    again.open();
    QCOMPARE(again.user.pageNumber(), step);
    QCOMPARE(again.user.shownUpTo(step), shown);
    QCOMPARE(bytesOf(path()), bytes);
    checkResumeFile();
}

void TestOpenedFile::theFileOpensBehindPleaseWait()
{
    const QByteArray bytes = saveHall(5);
    QVERIFY(writeBytes(resumePath(), otherWork));
    Opened again;
    setNicIndex(again.user.doc, 0);
    MainWindow window(nullptr, &again.user.doc, &again.file);
    QCoreApplication::removePostedEvents(&window); // the question for the interface
    window.show();
    setNicIndex(again.user.doc, 1);
    StartDiscoveryEvent search;
    QCoreApplication::sendEvent(&window, &search);
    const auto* wait = window.findChild<QWidget*>(QStringLiteral("resumeDialog"));
    QVERIFY(wait != nullptr && wait->isVisible());
    QVERIFY(!window.isEnabled());
    QCOMPARE(roomCount(again.user.doc), 0);
    QTRY_VERIFY_WITH_TIMEOUT(window.isEnabled(), 8000);
    QVERIFY(!wait->isVisible());
    QCOMPARE(WizardHands(&window).pageNumber(), 5);
    QCOMPARE(bytesOf(path()), bytes);
    checkResumeFile();
    // Searching once more loads nothing over what was entered meanwhile.
    QCoreApplication::sendEvent(&window, &search);
    QVERIFY(window.isEnabled());
}

void TestOpenedFile::yesOnClosingSavesIntoTheFile()
{
    const QByteArray bytes = saveHall(7);
    QVERIFY(writeBytes(resumePath(), otherWork));
    {
        Opened again;
        again.open();
        again.user.namePreset(1, QStringLiteral("Renamed"));
        again.close("Yes");
    }
    QVERIFY(bytesOf(path()) != bytes);
    QCOMPARE(QDir(folder()).entryList(QDir::Files).size(), 1);
    checkResumeFile();
    Opened third;
    third.open();
    QCOMPARE(third.user.pageNumber(), 7);
    QCOMPARE(presetName(third.user.doc, 1, 1), QStringLiteral("Renamed"));
}

void TestOpenedFile::withoutYesTheFileStaysAsItIs()
{
    const QByteArray bytes = saveHall(7);
    Opened again;
    again.open();
    again.user.namePreset(1, QStringLiteral("Renamed"));
    again.close("No");
    QCOMPARE(bytesOf(path()), bytes);
    QVERIFY(!QFile::exists(resumePath()));
}

void TestOpenedFile::whatWasInstalledIsOfferedToTheFileThatHoldsSomethingElse_data()
{
    QTest::addColumn<int>("pagesOn");
    QTest::newRow("on the step that installed it") << 0;
    QTest::newRow("on the last page") << 1;
}

void TestOpenedFile::whatWasInstalledIsOfferedToTheFileThatHoldsSomethingElse()
{
    QFETCH(const int, pagesOn);
    saveHall(7);
    {
        Opened again;
        again.open();
        again.user.namePreset(1, QStringLiteral("Renamed"));
        again.user.next();
        again.endAsInstalled(pagesOn);
        again.close("Yes");
    }
    Opened third;
    third.open();
    QCOMPARE(third.user.pageNumber(), 8);
    QCOMPARE(presetName(third.user.doc, 1, 1), QStringLiteral("Renamed"));
}

void TestOpenedFile::afterAnInstallationOfTheFileAsItWasNothingIsAsked()
{
    const QByteArray bytes = saveHall(8);
    for (const int pagesOn : {0, 1}) {
        Opened again;
        again.open();
        again.user.back(2);
        again.user.next(2);
        again.endAsInstalled(pagesOn);
        const DialogAnswerer nothingIsAsked;
        QVERIFY(again.user.window->close());
        QCOMPARE(bytesOf(path()), bytes);
    }
}

void TestOpenedFile::aMissingDeviceIsToldOfAndTheThirdStepOpensWithTheRest()
{
    saveHall(8);
    Opened again({rightSpeaker});
    {
        const DialogAnswerer told("Missing device", pressing("OK"));
        again.open();
        QVERIFY(told.text().contains(u"Hostname:Right,Model:DSK4M,IP="));
    }
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(again.user.pageNumber(), 3);
    QCOMPARE(again.user.shownRoom(hubA), QStringLiteral("1"));
    QCOMPARE(roomCount(again.user.doc), 3);
    QCOMPARE(layoutCount(again.user.doc), 2);
    QCOMPARE(presetName(again.user.doc, 4, 2), QStringLiteral("Hall 50%2"));
    again.user.back();
    QCOMPARE(again.user.pageNumber(), 2);
}

void TestOpenedFile::theWayOnFromAMissingDeviceMakesWholeSets()
{
    saveHall(8);
    Opened again({rightSpeaker});
    const QString address = QStringLiteral("127.61.0.77");
    QVERIFY(addDevice(again.user.doc, exchangedSpeaker(address)));
    {
        const DialogAnswerer told("Missing device", pressing("OK"));
        again.open();
    }
    again.user.place(QStringLiteral("New"), 2);
    again.user.next();
    QCOMPARE(again.user.shown(4).size(), 2);
    again.user.next();
    const QStringList sets = again.user.shown(5);
    QCOMPARE(sets.filter(QStringLiteral("New|")).size(), 2);
    QCOMPARE(sets.filter(QStringLiteral("Right|")).size(), 0);
    QCOMPARE(sets.filter(QStringLiteral("removed")).size(), 1); // Hub-B, as before
    again.user.next();
    again.user.chooseSide(4, QStringLiteral("New"), QStringLiteral("R"));
    again.user.next(2);
    QCOMPARE(again.user.pageNumber(), 8);
    QCOMPARE(presetName(again.user.doc, 4, 2), QStringLiteral("Hall 50%2"));
    QCOMPARE(deviceSetRecord(again.user.doc, 4, 2, address)->speakerPosition, QStringLiteral("R"));
    QVERIFY(!deviceSetRecord(again.user.doc, 4, 2, WizardUser::address(rightSpeaker)));
    QCOMPARE(*peripheralsOfHub(again.user.doc, WizardUser::address(hubA), 2),
             QStringList({WizardUser::address(QStringLiteral("Left")), address}));
}

void TestOpenedFile::aNewDeviceAtTheOldAddressKeepsItsRemovals()
{
    {
        WizardUser before;
        before.open();
        before.workThrough(5);
        before.toggleInSet(4, rightSpeaker);
        before.closeAndSave();
        QVERIFY(QDir().mkpath(folder()));
        QVERIFY(QFile::rename(resumePath(), path()));
    }
    Opened again({rightSpeaker});
    QVERIFY(addDevice(again.user.doc, exchangedSpeaker(WizardUser::address(rightSpeaker))));
    {
        const DialogAnswerer told("Missing device", pressing("OK"));
        again.open();
    }
    QCOMPARE(again.user.pageNumber(), 3);
    again.user.place(QStringLiteral("New"), 2);
    again.user.next(2);
    const QStringList rows = again.user.shown(5).filter(QStringLiteral("New|"));
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.filter(QStringLiteral("removed")).size(), 1);
}

void TestOpenedFile::aFileThatCannotBeReadIsToldOnceAndTheGridIsEmpty()
{
    WizardUser fresh;
    fresh.open();
    fresh.next();
    const QStringList emptyGrid = fresh.shown(2);
    QVERIFY(writeBytes(path(), "not a saved configuration"));
    QVERIFY(writeBytes(resumePath(), otherWork));
    Opened again;
    const DialogAnswerer told("Error", pressing("OK"));
    again.open();
    QCOMPARE(told.text(), QDir::toNativeSeparators(path()) +
                              QStringLiteral(" cannot be opened: byte 1: this is no configuration "
                                             "of a hall.\n\nIt stays as it is: what you save goes "
                                             "into a new file beside it."));
    QCOMPARE(told.buttons(), QStringList(QStringLiteral("OK")));
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(again.user.pageNumber(), 2);
    QCOMPARE(again.user.shown(2), emptyGrid);
    QCOMPARE(roomCount(again.user.doc), 0);
    QCOMPARE(bytesOf(path()), QByteArray("not a saved configuration"));
    checkResumeFile();
}

void TestOpenedFile::ofAFileThatIsNotWholeNothingIsTaken_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QByteArray whole = saveHall(8);
    // Two bytes a character, of which the first is zero: a room that no hall has.
    const QByteArray inAnImpossibleRoom = QByteArray(whole).replace(
        QByteArrayLiteral("m\0=\0\"\0001\0\""), QByteArrayLiteral("m\0=\0\"\0009\0\""));
    QVERIFY(inAnImpossibleRoom != whole);
    QTest::newRow("cut") << whole.chopped(1) << QStringLiteral("it is cut or damaged");
    QTest::newRow("longer") << whole + "x" << QStringLiteral("something follows its pictures");
    QTest::newRow("a device in an impossible room")
        << inAnImpossibleRoom << QStringLiteral("something that this version does not know");
}

void TestOpenedFile::ofAFileThatIsNotWholeNothingIsTaken()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    QVERIFY(writeBytes(path(), bytes));
    Opened again;
    const DialogAnswerer told("Error", pressing("OK"));
    again.open();
    QVERIFY2(told.text().contains(reason), qPrintable(told.text()));
    QCOMPARE(again.user.pageNumber(), 2);
    QCOMPARE(roomCount(again.user.doc), 0);
    again.close("Yes");
    QCOMPARE(bytesOf(path()), bytes);
}

void TestOpenedFile::whatIsSavedThenGoesBesideTheUnreadableFile()
{
    QVERIFY(writeBytes(path(), "not a saved configuration"));
    {
        Opened again;
        const DialogAnswerer told("Error", pressing("OK"));
        again.open();
        again.user.draw({{0, 0}, {0, 1}});
        again.close("Yes");
    }
    QCOMPARE(bytesOf(path()), QByteArray("not a saved configuration"));
    QVERIFY(!QFile::exists(resumePath()));
    TesselDoc doc(nullptr);
    QVERIFY(doc.loadResume(folder() + QStringLiteral("/old hall (2).tessel")));
    QCOMPARE(roomCount(doc), 1);
}

void TestOpenedFile::aFileThatIsNotThereIsToldAndMadeOnYes()
{
    Opened again;
    const DialogAnswerer told("Error", pressing("OK"));
    again.open();
    const QString start = QDir::toNativeSeparators(path()) + QStringLiteral(" cannot be opened: ");
    const QStringList systemsWords{QStringLiteral("No such file or directory."),
                                   QStringLiteral("Path not found.")};
    QVERIFY2(told.text().startsWith(start) && systemsWords.contains(told.text().mid(start.size())),
             qPrintable(told.text()));
    again.user.draw({{0, 0}, {0, 1}});
    again.close("Yes");
    TesselDoc doc(nullptr);
    QVERIFY(doc.loadResume(path()));
    QCOMPARE(roomCount(doc), 1);
    QCOMPARE(pageIndex(doc), 1);
}

void TestOpenedFile::aFileThatWasOpenedWithoutADeviceStaysAndTheNewOneIsBesideIt()
{
    const QByteArray bytes = saveHall(8);
    {
        Opened again({rightSpeaker});
        const DialogAnswerer told("Missing device", pressing("OK"));
        again.open();
        again.close("Yes");
    }
    QCOMPARE(bytesOf(path()), bytes);
    QVERIFY(QFile::exists(folder() + QStringLiteral("/old hall (2).tessel")));
}

void TestOpenedFile::aFileThatCannotBeWrittenIsToldAndTheWindowStays()
{
    saveHall(5);
    Opened again;
    again.open();
    // A folder in the file's place cannot be written to, whoever runs the test.
    QVERIFY(QFile::remove(path()));
    QVERIFY(QDir().mkpath(path()));
    const DialogAnswerer told("Error", pressing("OK"));
    const DialogAnswerer question("Save Information?", pressing("Yes"));
    QVERIFY(!again.user.window->close());
    QVERIFY(again.user.window->isVisible());
    QCOMPARE(told.text(), QStringLiteral("Information could not be saved."));
}

TESSEL_TEST_MAIN(TestOpenedFile)
#include "tst_openedfile.moc"
