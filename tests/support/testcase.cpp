#include "testcase.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

void TestCase::init()
{
    // The offscreen platform says of itself that it lacks these three, the last of them for every
    // menu; nothing else is exempt.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(
        R"(^(?!This plugin does not support (propagateSizeHints\(\)|raise\(\)|grabbing the keyboard)))")));
}

int runTestCase(TestCase& test, int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    // Where the session has none, Qt warns that it makes up a folder of its own.
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    const QApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}
