// Saving where the disk is full or may not be written, through the window as the user meets it.
// The program gets mounts of its own, which nobody else sees and which end with it.
#include "dialoganswerer.h"
#include "documentfixtures.h"
#include "hands.h"
#include "layoutqueries.h"
#include "mainwindow.h"
#include "presetqueries.h"
#include "privatemounts.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

namespace {

constexpr qint64 pageOfMemory = 4096; // a disk in memory is filled by whole pages
constexpr int diskPages = 64;
constexpr int maxFreePages = 30;
const QByteArray earlier("an earlier file");

QString folder()
{
    return QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel");
}

QString resumePath()
{
    return folder() + QStringLiteral("/resume.dat");
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// A wizard with two rooms and ten layouts.
struct Wizard
{
    explicit Wizard(int presetNameLength)
    {
        setNicIndex(doc, 7);
        drawRooms(doc, 2);
        for (int room = 1; room <= 2; ++room) {
            addTestDevice(doc, QStringLiteral("Hub-%1").arg(room), QStringLiteral("PX-HB"),
                          QStringLiteral("127.81.0.%1").arg(room), room);
        }
        for (int number = 1; number <= 10; ++number) {
            addColouredLayout(doc, number, QStringLiteral("1+2"),
                              QColor::fromHsv(number * 30, 200, 200));
            addPreset(doc, number, number, QString(presetNameLength, QLatin1Char('p')));
        }
    }

    void open()
    {
        window = std::make_unique<MainWindow>(nullptr, &doc);
        window->show();
    }

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
};

/// The file that it finds is no configuration; the button answers whether to remove it.
void openOverUnreadableFile(Wizard& wizard, const char* button)
{
    const DialogAnswerer question("Error", pressing(button));
    wizard.open();
}

/// Closes the window and saves; returns what the user is told, title and text of each box.
QStringList closeAndSave(MainWindow& window)
{
    QStringList told;
    DialogAnswerer answers("Save Information?", pressing("Yes"));
    answers.onDialog("Error", [&](QWidget* box) {
        told = QStringList{box->windowTitle(), box->property("text").toString()};
        Hands::clickButton(box, "OK");
    });
    if (!window.close()) {
        told.append(QStringLiteral("the window stays open"));
    }
    return told;
}

/// The same when the disk has so many free pages and an earlier file, which is no configuration.
QStringList closeAndSaveOnFullDisk(Wizard& wizard, int freePages)
{
    QStringList told;
    const QString other = folder() + QStringLiteral("/other");
    if (writeBytes(resumePath(), earlier)) {
        openOverUnreadableFile(wizard, "No");
        wizard.window->next();
        const QByteArray rest((diskPages - freePages) * pageOfMemory, 'x');
        told = writeBytes(other, rest) ? closeAndSave(*wizard.window)
                                       : QStringList(QStringLiteral("the disk cannot be filled"));
    }
    return told;
}

const QStringList couldNotBeSaved{QStringLiteral("Error"),
                                  QStringLiteral("Information could not be saved.")};

} // namespace

class TestSaveFailure : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void onAFullDiskTheEarlierFileOrTheNewOneIsWhole_data();
    void onAFullDiskTheEarlierFileOrTheNewOneIsWhole();
    void aDiskWithoutRoomForAnotherFileIsTold();
    void aFolderThatMayNotBeWrittenIsTold();
    void workInAFolderThatMayNotBeWrittenIsStillResumed();
};

void TestSaveFailure::initTestCase()
{
    TestCase::initTestCase();
    const QString refusal = privateMountsRefusal();
    if (!refusal.isEmpty()) {
        QSKIP(qPrintable(refusal));
    }
    QVERIFY(QDir().mkpath(folder()));
}

void TestSaveFailure::cleanup()
{
    unmount(folder());
}

void TestSaveFailure::onAFullDiskTheEarlierFileOrTheNewOneIsWhole_data()
{
    QTest::addColumn<int>("presetNameLength");
    QTest::newRow("a small configuration, written in one piece") << 20;
    QTest::newRow("a large configuration, written in several") << 2'000;
}

void TestSaveFailure::onAFullDiskTheEarlierFileOrTheNewOneIsWhole()
{
    QFETCH(const int, presetNameLength);
    int saved = 0;
    int refused = 0;
    for (int freePages = 0; freePages <= maxFreePages; ++freePages) {
        QVERIFY(mountDisk(folder(), (diskPages + 1) * pageOfMemory, 16));
        Wizard wizard(presetNameLength);
        const QStringList told = closeAndSaveOnFullDisk(wizard, freePages);
        if (told.isEmpty()) {
            ++saved;
            Wizard resumed(0);
            QVERIFY(resumed.doc.loadResume(resumePath()));
            QCOMPARE(layoutAt(resumed.doc, 10)->thumbnail.size(), QSize(64, 64));
        } else {
            ++refused;
            QCOMPARE(told, couldNotBeSaved);
            QCOMPARE(bytesOf(resumePath()), earlier);
            QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden).size(), 2);
        }
        QVERIFY(unmount(folder()));
    }
    qInfo("%d times saved, %d times told that it could not be", saved, refused);
    QVERIFY(saved > 0 && refused > 0);
}

void TestSaveFailure::aDiskWithoutRoomForAnotherFileIsTold()
{
    // One entry is the folder itself, the other the earlier file.
    QVERIFY(mountDisk(folder(), diskPages * pageOfMemory, 2));
    Wizard wizard(0);
    QVERIFY(writeBytes(resumePath(), earlier));
    openOverUnreadableFile(wizard, "No");
    wizard.window->next();
    QCOMPARE(closeAndSave(*wizard.window), couldNotBeSaved);
    QCOMPARE(bytesOf(resumePath()), earlier);
}

void TestSaveFailure::aFolderThatMayNotBeWrittenIsTold()
{
    QVERIFY(mountDisk(folder(), diskPages * pageOfMemory, 16));
    QVERIFY(writeBytes(resumePath(), earlier));
    QVERIFY(forbidWriting(folder()));
    Wizard wizard(0);
    openOverUnreadableFile(wizard, "Yes");
    wizard.window->next();
    QCOMPARE(closeAndSave(*wizard.window), couldNotBeSaved);
    QVERIFY(!wizard.window->isVisible());
    QCOMPARE(bytesOf(resumePath()), earlier);
}

void TestSaveFailure::workInAFolderThatMayNotBeWrittenIsStillResumed()
{
    QVERIFY(mountDisk(folder(), diskPages * pageOfMemory, 16));
    Wizard saved(0);
    saved.open();
    saved.window->next();
    QCOMPARE(closeAndSave(*saved.window), QStringList());
    const QByteArray bytes = bytesOf(resumePath());
    QVERIFY(forbidWriting(folder()));
    Wizard resumed(0);
    resumed.open();
    QCOMPARE(pageIndex(resumed.doc), 1);
    QCOMPARE(layoutCount(resumed.doc), 10);
    QCOMPARE(bytesOf(resumePath()), bytes);
}

int main(int argc, char** argv)
{
    // Before anything starts a thread: afterwards a program keeps the mounts it has.
    makePrivateMounts();
    TestSaveFailure test;
    return runTestCase(test, argc, argv);
}

#include "tst_savefailure.moc"
