#pragma once

#include <QObject>
#include <QTest>

/// Base of every test class: a test that makes Qt warn, fails, so that a connection to a slot
/// that does not exist, or a widget misused, cannot hide.
class TestCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    /// A class with an initTestCase() of its own calls this one first; likewise with init().
    void initTestCase();
    void init();
};

/// What a test program exits with where something of it could not be run and nothing failed. A
/// program that crashes or leaks at its end exits otherwise, and is not taken for skipped.
constexpr int skippedExitCode = 77;

/// Runs `test` the way every test program does: in an application of its own and with HOME in an
/// empty scratch folder, so that no test meets or leaves files of the person at the desk. Returns
/// what the program is to exit with: 0, 1 if something failed, or `skippedExitCode`.
int runTestCase(TestCase& test, int argc, char** argv);

/// What QSKIP does; it also notes that something was skipped, which Qt 6.4 tells nobody.
void skipTest(const char* reason, const char* file, int line);

#undef QSKIP
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): it leaves the test function, as Qt's own does.
#define QSKIP(reason)                                                                              \
    do {                                                                                           \
        skipTest(reason, __FILE__, __LINE__);                                                      \
        return;                                                                                    \
    } while (false)

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): a test program needs a main of its own.
#define TESSEL_TEST_MAIN(TestClass)                                                                \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        TestClass test;                                                                            \
        return runTestCase(test, argc, argv);                                                      \
    }
