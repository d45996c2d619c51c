#pragma once

#include <QObject>

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

/// Runs `test` the way every test program does: in an application of its own and with HOME in an
/// empty scratch folder, so that no test meets or leaves files of the person at the desk.
int runTestCase(TestCase& test, int argc, char** argv);

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): a test program needs a main of its own.
#define TESSEL_TEST_MAIN(TestClass)                                                                \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        TestClass test;                                                                            \
        return runTestCase(test, argc, argv);                                                      \
    }
