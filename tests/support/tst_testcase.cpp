// What a test program exits with. This one is also the programs that are looked at: "--as NAME".
#include "testcase.h"

#include <QCoreApplication>
#include <QProcess>

namespace {

constexpr int patienceMs = 60000;

} // namespace

/// Passes, skips or fails, as it is told.
class Subject : public TestCase
{
    Q_OBJECT

public:
    explicit Subject(const QByteArray& part)
        : m_part(part)
    {
    }

private Q_SLOTS:
    void passes() {}
    void mayBeSkipped();
    void mayFail_data();
    void mayFail();

private:
    QByteArray m_part;
};

void Subject::mayBeSkipped()
{
    if (m_part.contains("skips")) {
        QSKIP("as it was told");
    }
}

void Subject::mayFail_data()
{
    QTest::addColumn<bool>("passes");
    // As many as the number that would say something else.
    for (int row = 0; row < skippedExitCode; ++row) {
        QTest::addRow("%d", row) << !m_part.contains("fails");
    }
}

void Subject::mayFail()
{
    QFETCH(const bool, passes);
    QVERIFY(passes);
}

class TestTestCase : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theExitCodeTellsWhatWasSkipped_data();
    void theExitCodeTellsWhatWasSkipped();
};

void TestTestCase::theExitCodeTellsWhatWasSkipped_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<int>("code");
    QTest::newRow("all passes") << "passes" << 0;
    QTest::newRow("something is skipped") << "skips" << skippedExitCode;
    QTest::newRow("something fails") << "fails" << 1;
    QTest::newRow("both") << "skips and fails" << 1;
}

void TestTestCase::theExitCodeTellsWhatWasSkipped()
{
    QFETCH(const QString, part);
    QFETCH(const int, code);
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--as"), part});
    QVERIFY(program.waitForFinished(patienceMs));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), code);
}

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--as") == 0) {
        Subject subject(argv[2]);
        return runTestCase(subject, 1, argv);
    }
    TestTestCase test;
    return runTestCase(test, argc, argv);
}

#include "tst_testcase.moc"
