#include "entry.h"
#include "testcase.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <array>
#include <optional>

namespace {

std::optional<QString> nameDuringTheRun;

/// Runs when the first application object has been made, which is the wizard's.
void watchTheRun()
{
    if (!nameDuringTheRun) {
        QTimer::singleShot(0, qApp, [] {
            nameDuringTheRun = QGuiApplication::desktopFileName();
            QCoreApplication::quit();
        });
    }
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchTheRun)

/// By this name a desktop knows whose windows they are, and which icon and title to show for them.
class TestDesktopFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowsBelongToTheDesktopFileOfTheProgram();
};

void TestDesktopFile::theWindowsBelongToTheDesktopFileOfTheProgram()
{
    QCOMPARE(nameDuringTheRun, QStringLiteral("tessel"));
}

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    // An interface is handed over, so that nothing is asked and nothing is looked for.
    std::array<char, 5> interface {
        "-N:7"
    };
    std::array<char*, 3> arguments{argv[0], interface.data(), nullptr};
    int count = 2;
    runWizard(count, arguments.data());
    TestDesktopFile test;
    return runTestCase(test, argc, argv);
}

#include "tst_desktopfile.moc"
