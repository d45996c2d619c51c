#include "arguments.h"
#include "commandhelp.h"
#include "commandrun.h"
#include "hallfile.h"
#include "makecommand.h"
#include "testcase.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

/// `make`.
class TestMakeCommand : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSoundHallBecomesAFile();
    void everyFaultIsALineAndNothingIsWritten();
    void whatCannotBeUnderstoodHidesNoOtherFault();
    void aFaultHasNoOthersInItsWake_data();
    void aFaultHasNoOthersInItsWake();
    void faultsWithoutEndAreCutShort();
    void aFaultyHallIsWrittenWhenForced();
    void whatIsNoJsonIsNotForced();
    void withoutAnOutputItIsWrongUsage();
    void anOutputThatTheWizardCouldNotOpenIsWrongUsage();
    void anInputThatCannotBeReadIsTold_data();
    void anInputThatCannotBeReadIsTold();
    void anOutputThatCannotBeWrittenIsTold();
    void theInputIsNotOverwritten();
    void aDeviceOrAFolderIsNotReplaced();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    CommandRun make(const QByteArray& text, const QStringList& options = {}) const;

    QTemporaryDir m_folder;
};

CommandRun TestMakeCommand::make(const QByteArray& text, const QStringList& options) const
{
    putFile(path("hall.json"), text);
    return runCommand(MakeCommand(),
                      QStringList{path("hall.json"), QStringLiteral("-o"), path("hall.tessel")} +
                          options);
}

void TestMakeCommand::aSoundHallBecomesAFile()
{
    const CommandRun run = make(sampleHallText());
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.output, QString());
    QCOMPARE(run.code, ExitCode::AllIsWell);
    const HallReading reading = readHallFile(path("hall.tessel"));
    QVERIFY2(reading.hall != nullptr, qPrintable(reading.fault));
    QCOMPARE(reading.hall->data().devices.size(), 8);
    QCOMPARE(reading.hall->data().scenes.size(), 2);
}

void TestMakeCommand::everyFaultIsALineAndNothingIsWritten()
{
    putFile(path("hall.tessel"), "what was there");
    QByteArray text = changed(sampleHallText(), "PNB-QE7", "XY-1");
    text = changed(text, "\"1/2/3/4\"", "\"1+2/4/3\"");
    const CommandRun run = make(text);
    QCOMPARE(run.code, ExitCode::CouldNotBeTried);
    const QString begin = QStringLiteral("tesselctl: ") + path("hall.json");
    const QStringList lines = run.errors.split(u'\n', Qt::SkipEmptyParts);
    QVERIFY2(lines.contains(begin + QStringLiteral(": device 127.0.1.8: unknown model \"XY-1\"")),
             qPrintable(run.errors));
    QVERIFY(lines.contains(begin + QStringLiteral(": layout 2: 1+2/3/4 is layout 1 already")));
    QCOMPARE(fileAt(path("hall.tessel")), QByteArray("what was there"));
}

void TestMakeCommand::whatCannotBeUnderstoodHidesNoOtherFault()
{
    putFile(path("hall.tessel"), "what was there");
    QByteArray text = changed(sampleHallText(), "\"Small\"", "7");
    text = changed(text, "\"model\": \"PX-NDE\"", "\"model\": 5");
    text = changed(text, "PNB-QE7", "XY-1");
    text = changed(text, "\"1/2/3/4\"", "\"1/2/3\"");
    const CommandRun run = make(text, {QStringLiteral("--force")});
    QCOMPARE(run.code, ExitCode::CouldNotBeTried);
    const QString begin = QStringLiteral("tesselctl: ") + path("hall.json");
    QCOMPARE(run.errors.split(u'\n', Qt::SkipEmptyParts),
             QStringList(
                 {begin + QStringLiteral(": .devices[4].model: this is no text"),
                  begin + QStringLiteral(": .layouts[0].combined[1].preset-name: this is no text"),
                  begin + QStringLiteral(": device 127.0.1.8: unknown model \"XY-1\""),
                  begin + QStringLiteral(": layout 2: room 4 is not in it")}));
    QCOMPARE(fileAt(path("hall.tessel")), QByteArray("what was there"));
}

void TestMakeCommand::aFaultHasNoOthersInItsWake_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("a key for the rooms")
        << QByteArray("\"rooms\": [\"1111") << QByteArray("\"roms\": [\"1111");
    QTest::newRow("a row") << QByteArray("........") << QByteArray(".......");
    QTest::newRow("a label") << QByteArray("\"Hub-1\"") << QByteArray("1");
    QTest::newRow("an address") << QByteArray("\"address\": \"127.0.1.8\", ") << QByteArray();
    QTest::newRow("a layout") << QByteArray("1+2/3/4") << QByteArray("1+2/3/x");
    QTest::newRow("a removed hub") << QByteArray("[\"127.0.1.2\"]") << QByteArray("[2]");
    QTest::newRow("a version") << QByteArray("\"rooms\": [\"1111")
                               << QByteArray("\"tessel\": 2, \"room\": [\"1111");
}

void TestMakeCommand::aFaultHasNoOthersInItsWake()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    const CommandRun run = make(changed(sampleHallText(), before, after));
    const QStringList lines = run.errors.split(u'\n', Qt::SkipEmptyParts);
    QVERIFY(!lines.isEmpty());
    for (const QString& line : lines) {
        QVERIFY2(line.startsWith(QStringLiteral("tesselctl: %1: .").arg(path("hall.json"))),
                 qPrintable(run.errors));
    }
}

void TestMakeCommand::faultsWithoutEndAreCutShort()
{
    const CommandRun run = make("{\"devices\": [" + QByteArray("{},").repeated(500) + "{}]}");
    QCOMPARE(run.errors.count(u'\n'), 51);
    QVERIFY2(run.errors.endsWith(u": and 952 faults more\n"), qPrintable(run.errors));
}

void TestMakeCommand::aFaultyHallIsWrittenWhenForced()
{
    const CommandRun run =
        make(changed(sampleHallText(), "PNB-QE7", "XY-1"), {QStringLiteral("--force")});
    QCOMPARE(run.code, ExitCode::SomethingIsNot);
    QCOMPARE(run.errors.count(u'\n'), 1);
    QVERIFY(readHallFile(path("hall.tessel")).hall != nullptr);
}

void TestMakeCommand::whatIsNoJsonIsNotForced()
{
    putFile(path("hall.tessel"), "what was there");
    const CommandRun run = make("{", {QStringLiteral("--force")});
    QCOMPARE(run.code, ExitCode::CouldNotBeTried);
    QCOMPARE(fileAt(path("hall.tessel")), QByteArray("what was there"));
}

void TestMakeCommand::withoutAnOutputItIsWrongUsage()
{
    const MakeCommand command;
    const Arguments arguments(command.syntax(), {path("hall.json")});
    QCOMPARE(arguments.fault(), QStringLiteral("-o FILE.tessel is missing"));
    QCOMPARE(usageOf(command),
             QStringLiteral("tesselctl make FILE.json -o FILE.tessel [--force] [--interface NAME] "
                            "[--wait SECONDS]"));
}

void TestMakeCommand::anOutputThatTheWizardCouldNotOpenIsWrongUsage()
{
    putFile(path("hall.json"), sampleHallText());
    const CommandRun run =
        runCommand(MakeCommand(), {path("hall.json"), QStringLiteral("-o"), path("hall.txt")});
    QCOMPARE(run.code, ExitCode::WrongUsage);
    QCOMPARE(run.errors, QStringLiteral("tesselctl: %1: its name does not end in .tessel, and the "
                                        "wizard could not open it\n")
                             .arg(path("hall.txt")));
    QVERIFY(!QFile::exists(path("hall.txt")));
}

void TestMakeCommand::anInputThatCannotBeReadIsTold_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("reason");
    putFile(path("empty.json"), {});
    QFile large(path("large.json"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64(17) * 1024 * 1024));
    QTest::newRow("missing") << path("none.json") << wordsForMissingFile();
    QTest::newRow("a folder") << m_folder.path() << QStringLiteral("this is a folder");
    QTest::newRow("empty") << path("empty.json") << QStringLiteral("the file is empty");
    QTest::newRow("too large") << path("large.json") << QStringLiteral("it is larger than any");
}

void TestMakeCommand::anInputThatCannotBeReadIsTold()
{
    QFETCH(const QString, input);
    QFETCH(const QString, reason);
    const CommandRun run =
        runCommand(MakeCommand(), {input, QStringLiteral("-o"), path("unwritten.tessel")});
    QCOMPARE(run.code, ExitCode::CouldNotBeTried);
    QCOMPARE(run.errors.count(u'\n'), 1);
    QVERIFY2(run.errors.startsWith(QStringLiteral("tesselctl: %1: %2").arg(input, reason)),
             qPrintable(run.errors));
    QVERIFY(!QFile::exists(path("unwritten.tessel")));
}

void TestMakeCommand::anOutputThatCannotBeWrittenIsTold()
{
    putFile(path("hall.json"), sampleHallText());
    const QString output = path("no/folder/hall.tessel");
    const CommandRun run =
        runCommand(MakeCommand(), {path("hall.json"), QStringLiteral("-o"), output});
    QCOMPARE(run.code, ExitCode::CouldNotBeTried);
    QVERIFY2(run.errors.startsWith(QStringLiteral("tesselctl: %1: ").arg(output)),
             qPrintable(run.errors));
}

void TestMakeCommand::theInputIsNotOverwritten()
{
    putFile(path("own.tessel"), sampleHallText());
    QList<const char*> names{"own.tessel"};
#ifdef Q_OS_UNIX
    // Elsewhere a shortcut is a file of its own.
    QVERIFY(QFile::link(path("own.tessel"), path("link.tessel")));
    names.append("link.tessel");
#endif
    for (const char* name : std::as_const(names)) {
        const CommandRun run =
            runCommand(MakeCommand(), {path("own.tessel"), QStringLiteral("-o"), path(name)});
        QCOMPARE(run.code, ExitCode::WrongUsage);
        QCOMPARE(run.errors, QStringLiteral("tesselctl: %1: this is the file that is read; choose "
                                            "another output\n")
                                 .arg(path(name)));
        QCOMPARE(fileAt(path("own.tessel")), sampleHallText());
    }
}

void TestMakeCommand::aDeviceOrAFolderIsNotReplaced()
{
    QList<const char*> names{"folder.tessel"};
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(path("device.tessel")).constData(), S_IRUSR | S_IWUSR), 0);
    names.append("device.tessel");
#endif
    QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("folder.tessel")));
    putFile(path("sound.json"), sampleHallText());
    for (const char* name : std::as_const(names)) {
        const CommandRun run =
            runCommand(MakeCommand(), {path("sound.json"), QStringLiteral("-o"), path(name)});
        QCOMPARE(run.code, ExitCode::WrongUsage);
        QCOMPARE(run.errors,
                 QStringLiteral("tesselctl: %1: this is no file, and is not replaced by one\n")
                     .arg(path(name)));
    }
}

TESSEL_TEST_MAIN(TestMakeCommand)
#include "tst_makecommand.moc"
