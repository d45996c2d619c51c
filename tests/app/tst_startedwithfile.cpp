#include "entry.h"
#include "finding.h"
#include "resumefile.h"
#include "testcase.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <array>
#include <utility>

namespace {

bool wasWatched = false;
QString titleDuringTheRun;
bool wasLogBegun = false;

/// Runs when the first application object has been made, which is the wizard's.
void watchTheRun()
{
    if (std::exchange(wasWatched, true)) {
        return;
    }
    QTimer::singleShot(0, qApp, [] {
        titleDuringTheRun = widgetOf(*wizardWindow(), "titleLabel")->property("text").toString();
        QCoreApplication::exit(); // which does not ask what is to be saved
    });
}

/// Two rooms, left on step 2.
QByteArray configuration()
{
    return packResumeFile(
        {QStringLiteral("<Tessel Page='1'><RoomInfoList><RoomInfo Number='1' PosList='{0,0}'/>"
                        "<RoomInfo Number='2' PosList='{1,0}'/></RoomInfoList></Tessel>"),
         {}});
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchTheRun)

/// The program's entry, with files among its arguments.
class TestStartedWithFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theWizardShowsTheWorkOfTheFile();
    void theLogIsBegun();
};

void TestStartedWithFile::theWizardShowsTheWorkOfTheFile()
{
    QCOMPARE(titleDuringTheRun, QStringLiteral("2. Room Design"));
}

void TestStartedWithFile::theLogIsBegun()
{
    QVERIFY(wasLogBegun);
}

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    QByteArray path = home.filePath(QStringLiteral("Hall.TESSEL")).toLocal8Bit();
    writeResumeFile(QString::fromLocal8Bit(path), configuration());
    // An interface is handed over, so that nothing is asked and nothing is looked for.
    QByteArray interface = "-N:7";
    QByteArray option = "--log";
    QByteArray log = home.filePath(QStringLiteral("requests.jsonl")).toLocal8Bit();
    std::array<char*, 6> arguments{argv[0],       interface.data(), path.data(),
                                   option.data(), log.data(),       nullptr};
    int count = int(arguments.size()) - 1;
    runWizard(count, arguments.data());
    wasLogBegun = QFile::exists(QString::fromLocal8Bit(log));
    TestStartedWithFile test;
    return runTestCase(test, argc, argv);
}

#include "tst_startedwithfile.moc"
