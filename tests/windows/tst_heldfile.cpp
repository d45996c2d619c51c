#include "commandrun.h"
#include "configurationfile.h"
#include "dialoganswerer.h"
#include "documentfixtures.h"
#include "hands.h"
#include "mainwindow.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"
#include "toolrun.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

namespace {

const QByteArray earlier("an earlier file");

/// A file as another program has it open, until this goes.
class HeldFile
{
public:
    HeldFile(const QString& path, DWORD shared)
        : m_file(::CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), GENERIC_READ,
                               shared, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }
    ~HeldFile() { ::CloseHandle(m_file); }
    Q_DISABLE_COPY_MOVE(HeldFile)

    bool isHeld() const { return m_file != INVALID_HANDLE_VALUE; }

private:
    HANDLE m_file;
};

QString resumeFolder()
{
    return QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel");
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Closes the window and saves; returns what the user is told.
QStringList closeAndSave(MainWindow& window)
{
    QStringList told;
    DialogAnswerer answers("Save Information?", pressing("Yes"));
    answers.onDialog("Error", [&](QWidget* box) {
        told.append(box->property("text").toString());
        Hands::clickButton(box, "OK");
    });
    window.close();
    return told;
}

} // namespace

/// Files that another program has open, which this system then keeps from being replaced.
class TestHeldFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void savedWorkThatIsHeldStaysAndThatIsTold_data();
    void savedWorkThatIsHeldStaysAndThatIsTold();
    void outputOfTheToolThatIsHeldStaysAndThatIsTold_data();
    void outputOfTheToolThatIsHeldStaysAndThatIsTold();
    void aConfigurationThatAnotherProgramKeepsForItselfIsNotOpened();
};

namespace {

void addWaysOfHolding()
{
    QTest::addColumn<ulong>("shared");
    QTest::newRow("kept for itself") << ulong(0);
    QTest::newRow("shared with readers") << ulong(FILE_SHARE_READ);
    QTest::newRow("shared with readers and writers") << ulong(FILE_SHARE_READ | FILE_SHARE_WRITE);
}

} // namespace

void TestHeldFile::savedWorkThatIsHeldStaysAndThatIsTold_data()
{
    addWaysOfHolding();
}

void TestHeldFile::savedWorkThatIsHeldStaysAndThatIsTold()
{
    QFETCH(const ulong, shared);
    QDir(resumeFolder()).removeRecursively();
    TesselDoc doc(nullptr);
    setNicIndex(doc, 7);
    drawRooms(doc, 2);
    MainWindow window(nullptr, &doc);
    window.show();
    window.next();
    const QString path = resumeFolder() + QStringLiteral("/resume.dat");
    QVERIFY(QDir().mkpath(resumeFolder()));
    putFile(path, earlier);
    {
        const HeldFile held(path, shared);
        QVERIFY(held.isHeld());
        QCOMPARE(closeAndSave(window),
                 QStringList(QStringLiteral("Information could not be saved.")));
    }
    QCOMPARE(bytesOf(path), earlier);
    QCOMPARE(QDir(resumeFolder()).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("resume.dat")));
    QVERIFY(QFile::remove(path));
}

void TestHeldFile::outputOfTheToolThatIsHeldStaysAndThatIsTold_data()
{
    addWaysOfHolding();
}

void TestHeldFile::outputOfTheToolThatIsHeldStaysAndThatIsTold()
{
    QFETCH(const ulong, shared);
    const QTemporaryDir folder;
    const QString text = folder.filePath(QStringLiteral("hall.json"));
    const QString hall = folder.filePath(QString::fromUtf8("Größe.tessel"));
    putFile(text, sampleHallText());
    putFile(hall, earlier);
    {
        const HeldFile held(hall, shared);
        QVERIFY(held.isHeld());
        const ToolRun run =
            runBuiltTool({QStringLiteral("make"), text, QStringLiteral("-o"), hall});
        QCOMPARE(run.exitCode, 3);
        QVERIFY2(isOneLine(run.errors) && run.errors.contains(hall), qPrintable(run.errors));
    }
    QCOMPARE(bytesOf(hall), earlier);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void TestHeldFile::aConfigurationThatAnotherProgramKeepsForItselfIsNotOpened()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("hall.tessel"));
    TesselDoc doc(nullptr);
    drawRooms(doc, 2);
    QVERIFY(doc.saveResume(path));
    TesselDoc other(nullptr);
    ConfigurationFile file(&other, path);
    {
        const HeldFile held(path, 0);
        QVERIFY(held.isHeld());
        QVERIFY(!file.read());
        QVERIFY(!file.fault().isEmpty());
    }
    QVERIFY(file.read());
}

TESSEL_TEST_MAIN(TestHeldFile)
#include "tst_heldfile.moc"
