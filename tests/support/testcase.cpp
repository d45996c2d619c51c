#include "testcase.h"

#include <QApplication>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>

namespace {

QtMessageHandler testLog = nullptr;
bool isSomethingSkipped = false;

/// What Wine says of itself, which Windows does not: one line for every window, and one for every
/// look at the desktop's colours.
bool isOfWine(const QString& text)
{
    static const QRegularExpression window(QRegularExpression::anchoredPattern(
        QStringLiteral("EnableNonClientDpiScaling\\(\\) failed for HWND 0x[0-9a-f]+ \\(120\\) "
                       "\\(Call not implemented\\.\\)")));
    return text == u"queryDarkBorder: Unable to retrieve dark window border setting." ||
           window.match(text).hasMatch();
}

/// Takes out what the offscreen platform says of itself, whatever the program does: one line for
/// every window, and one for every menu and list that drops down; and those of Wine. Nothing else
/// is exempt.
void passOn(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    static const QStringList exempt{
        QStringLiteral("This plugin does not support propagateSizeHints()"),
        QStringLiteral("This plugin does not support raise()"),
        QStringLiteral("This plugin does not support grabbing the keyboard")};
    if (!exempt.contains(text) && !isOfWine(text)) {
        testLog(type, context, text);
    }
}

} // namespace

void TestCase::initTestCase()
{
    // Not earlier: the test log takes the place of a handler that is there before it.
    testLog = qInstallMessageHandler(passOn);
    TestCase::init();
}

void TestCase::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

int runTestCase(TestCase& test, int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    // It may say that the documents are in another place than below HOME.
    qunsetenv("XDG_CONFIG_HOME");
    // Where the session has none, Qt warns that it makes up a folder of its own.
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
#ifdef Q_OS_WIN
    // As the wizard does.
    QApplication::setStyle(QStringLiteral("Fusion"));
#endif
    const QApplication application(argc, argv);
    // The number of failures could be that of skipping.
    if (QTest::qExec(&test, argc, argv) != 0) {
        return 1;
    }
    return isSomethingSkipped ? skippedExitCode : 0;
}

void skipTest(const char* reason, const char* file, int line)
{
    isSomethingSkipped = true;
    QTest::qSkip(reason, file, line);
}
