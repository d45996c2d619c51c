// What befalls a resume file between two starts: bytes that change on the disk, and a program that
// dies while it saves.
#include "devicequeries.h"
#include "dialoganswerer.h"
#include "documentfixtures.h"
#include "layoutqueries.h"
#include "presetqueries.h"
#include "roomqueries.h"
#include "setqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <array>
#include <random>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

constexpr qint64 longestLoadMs = 1000;
constexpr qint64 maxWholeLoads = 20; // what a load may take where a checker slows everything
constexpr qint64 maxMemoryKiB = qint64(200) * 1024;
#ifdef __SANITIZE_ADDRESS__
constexpr int damagedFiles = 2'000; // the checker makes each take five times as long
#else
constexpr int damagedFiles = 10'000;
#endif
constexpr int savedAgainEvery = 10; // saving waits for the disk
constexpr int killings = 200;
constexpr quint32 seed = 20'240'917; // the same damage on every run

QString addressOf(int number)
{
    return QStringLiteral("127.80.0.%1").arg(number);
}

void addDevices(TesselDoc& doc)
{
    for (int number = 1; number <= 6; ++number) {
        addTestDevice(doc, QStringLiteral("device %1").arg(number),
                      number <= 2 ? QStringLiteral("PX-HB") : QStringLiteral("PX-DL"),
                      addressOf(number));
    }
}

/// Two rooms and so many layouts, with something in every list of the file.
void fill(TesselDoc& doc, int layouts)
{
    addDevices(doc);
    for (int room = 1; room <= 2; ++room) {
        setRoomCells(doc, room, {{room, 0}, {room, 1}});
    }
    for (int number = 1; number <= 6; ++number) {
        QVERIFY(setDeviceRoom(doc, addressOf(number), 1 + number % 2));
    }
    for (int layout = 1; layout <= layouts; ++layout) {
        addColouredLayout(doc, layout, QStringLiteral("1+2"),
                          QColor::fromHsv(layout * 30, 200, 200));
        QVERIFY(addPreset(doc, layout, layout, QStringLiteral("Preset %1").arg(layout)));
        QVERIFY(addToDeviceSet(doc, layout, layout, addressOf(layout), layout % 2 == 0));
    }
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A new file each time: some file systems wait for the disk when one is emptied and written again.
bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile::remove(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Whether this byte, in place of the zero before a plain letter, makes it one from a script with
/// shapes of its own, Hebrew to Vedic. No font of a bare machine has them all, and Qt warns of each
/// that is missing when the box of missing devices is to show such a label.
bool makesShapedLetter(char before, char after)
{
    return before == 0 && after >= 0x05 && after < 0x1E;
}

/// Changes one byte, or two wherever they are.
QByteArray damaged(QByteArray bytes, int changes, std::mt19937& random)
{
    for (int change = 0; change < changes; ++change) {
        const auto at = qsizetype(random() % quint32(bytes.size()));
        const char before = bytes.at(at);
        do {
            bytes[at] = char(before ^ char(1 + random() % 255));
        } while (makesShapedLetter(before, bytes.at(at)));
    }
    return bytes;
}

/// How long an undamaged file takes to load, in milliseconds.
qint64 wholeLoad(const QString& path)
{
    TesselDoc doc(nullptr);
    addDevices(doc);
    QElapsedTimer clock;
    clock.start();
    doc.loadResume(path);
    return clock.elapsed();
}

/// The most memory that this program has held so far, in KiB; 0 where the system does not say, or
/// where a checker holds back what the program has freed.
qint64 peakMemory()
{
#ifndef __SANITIZE_ADDRESS__
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.simplified().split(' ').at(1).toLongLong();
            }
        }
    }
#endif
    return 0;
}

#ifdef Q_OS_LINUX
/// A copy of this program that saves the two documents in turn until it is killed. It says through
/// the pipe that it has begun.
pid_t startSaving(const QString& path, TesselDoc& one, TesselDoc& other)
{
    std::array<int, 2> began = {};
    if (pipe(began.data()) != 0) {
        return -1;
    }
    const pid_t test = getpid();
    const pid_t child = fork();
    if (child == 0) {
        one.saveResume(path);
        const bool told = write(began[1], "", 1) == 1;
        while (told && getppid() == test) {
            other.saveResume(path);
            one.saveResume(path);
        }
        _exit(1);
    }
    char byte = 0;
    const bool heard = read(began[0], &byte, 1) == 1;
    close(began[0]);
    close(began[1]);
    return heard ? child : -1;
}

/// True when it was saving to the end.
bool killIt(pid_t child)
{
    int status = 0;
    return kill(child, SIGKILL) == 0 && waitpid(child, &status, 0) == child &&
           WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}
#endif

} // namespace

class TestResumeTorture : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void changedBytesCostNeitherTimeNorMemory_data();
    void changedBytesCostNeitherTimeNorMemory();
    void aFileIsWholeWheneverTheProgramIsKilled();

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("resume.dat"));
};

void TestResumeTorture::changedBytesCostNeitherTimeNorMemory_data()
{
    QTest::addColumn<int>("changes");
    QTest::newRow("one byte") << 1;
    QTest::newRow("two bytes") << 2;
}

void TestResumeTorture::changedBytesCostNeitherTimeNorMemory()
{
    QFETCH(const int, changes);
    TesselDoc before(nullptr);
    fill(before, 2);
    QVERIFY(before.saveResume(m_path));
    const QByteArray bytes = bytesOf(m_path);
    DialogAnswerer answers;
    answers.onDialog("Missing device", pressing("OK"));
    const qint64 limit = std::max(longestLoadMs, maxWholeLoads * wholeLoad(m_path));
    std::mt19937 random(seed + quint32(changes));
    int loaded = 0;
    qint64 longest = 0;
    for (int file = 0; file < damagedFiles / 2; ++file) {
        QVERIFY(writeBytes(m_path, damaged(bytes, changes, random)));
        TesselDoc after(nullptr);
        addDevices(after);
        QElapsedTimer clock;
        clock.start();
        const bool isLoaded = after.loadResume(m_path);
        longest = std::max(longest, clock.elapsed());
        QVERIFY2(longest < limit, qPrintable(QString::number(file)));
        QCOMPARE(deviceCount(after), 6);
        loaded += isLoaded ? 1 : 0;
        if (isLoaded && loaded % savedAgainEvery == 0) {
            // What was taken is a configuration like any other: saved, it loads again.
            QFile::remove(m_path);
            QVERIFY(after.saveResume(m_path) && after.loadResume(m_path));
        }
    }
    qInfo("%d of %d damaged files were loaded; at most %lld ms each and %lld KiB in all", loaded,
          damagedFiles / 2, longest, peakMemory());
    QVERIFY(loaded > 0 && loaded < damagedFiles / 2);
    QVERIFY(peakMemory() < maxMemoryKiB);
}

void TestResumeTorture::aFileIsWholeWheneverTheProgramIsKilled()
{
#ifdef Q_OS_LINUX
    TesselDoc one(nullptr);
    TesselDoc other(nullptr);
    fill(one, 2);
    fill(other, 6);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(one.saveResume(m_path));
    const QByteArray first = bytesOf(m_path);
    QVERIFY(other.saveResume(m_path));
    const QByteArray second = bytesOf(m_path);
    const auto bothSavesUs = static_cast<unsigned long>(clock.nsecsElapsed() / 1000 + 1);
    QVERIFY(first != second);
    std::mt19937 random(seed);
    int firsts = 0;
    for (int killing = 0; killing < killings; ++killing) {
        const pid_t child = startSaving(m_path, one, other);
        QVERIFY(child > 0);
        // The moment itself is what is tried out; nothing is waited for.
        QThread::usleep(random() % (2 * bothSavesUs));
        QVERIFY(killIt(child));
        const QByteArray left = bytesOf(m_path);
        QVERIFY2(left == first || left == second, qPrintable(QString::number(left.size())));
        firsts += left == first ? 1 : 0;
    }
    qInfo("Killed %d times: %d times the one, %d times the other was left", killings, firsts,
          killings - firsts);
    QVERIFY(firsts > 0 && firsts < killings);
    QVERIFY(other.saveResume(m_path));
    QCOMPARE(bytesOf(m_path), second);
#else
    QSKIP("No copies of a running program can be made here.");
#endif
}

TESSEL_TEST_MAIN(TestResumeTorture)
#include "tst_resumetorture.moc"
