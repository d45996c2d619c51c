#include "commandrun.h"
#include "filesizelimit.h"
#include "hallfile.h"
#include "halljson.h"
#include "testcase.h"
#include "toolrun.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A search in which all devices that stand in rooms answered.
QByteArray sampleFind()
{
    QByteArray others;
    for (const char* last : {"2", "3", "4", "5", "6", "7"}) {
        others += QByteArray(",\n {\"address\": \"127.0.1.") + last +
                  "\", \"mac\": \"02:1A:FF:00:00:0" + last + "\"}";
    }
    return R"({"begun": "2026-11-20T10:00:00", "devices": [
 {"address": "127.0.1.1", "mac": "02:1A:FF:00:00:01", "firmware": "2.1.7", "serial": "Y77",
  "verdict": "taken", "reason": "taken"})" +
           others + "]}";
}

QByteArray sampleWalk()
{
    QByteArray hubs;
    QByteArray first;
    QByteArray second;
    for (const char* last : {"1", "2", "3", "4"}) {
        const QByteArray address = "{\"address\": \"127.0.1." + QByteArray(last) + "\", ";
        const QByteArray comma = hubs.isEmpty() ? "" : ", ";
        hubs += comma + address + "\"before\": 1, \"restored\": 1, \"back\": true}";
        first += comma + address + "\"preset\": 1}";
        second += comma + address + "\"preset\": 2}";
    }
    return "{\"begun\": \"2026-11-21T10:00:00\", \"hubs\": [" + hubs +
           "], \"layouts\": [{\"number\": 1, \"rooms\": \"1+2/3/4\", \"reached\": true, "
           "\"hubs\": [" +
           first + "]}, {\"number\": 2, \"rooms\": \"1/2/3/4\", \"reached\": true, \"hubs\": [" +
           second + "]}]}";
}

/// Sets a variable for the programs that are run while it lives.
class Environment
{
public:
    Environment(const char* name, const QByteArray& value)
        : m_name(name)
        , m_former(qgetenv(name))
        , m_wasSet(qEnvironmentVariableIsSet(name))
    {
        qputenv(name, value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    Environment(Environment&&) = delete;
    Environment& operator=(Environment&&) = delete;
    ~Environment()
    {
        if (m_wasSet) {
            qputenv(m_name, m_former);
        } else {
            qunsetenv(m_name);
        }
    }

private:
    const char* m_name;
    QByteArray m_former;
    bool m_wasSet;
};

} // namespace

/// `report`, as the built program.
class TestReportCommand : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aHallBecomesAPage();
    void aHallBecomesAPdf();
    void theSameInputGivesTheSameBytes_data();
    void theSameInputGivesTheSameBytes();
    void theDayIsTheFirstThatIsKnown_data();
    void theDayIsTheFirstThatIsKnown();
    void aBrokenHallIsRecordedAsSuch();
    void aWalkThatWentWrongIsARecordAllTheSame();
    void theWalkOfAnotherHallIsNamed();
    void aWalkFromBeforeTheLayoutsChangedIsNamed();
    void aDeviceThatWasNotFoundAsItShouldIsNamed();
    void devicesOfAnotherHallAreLeftOutWithALine();
    void wrongUsageIsOneLine_data();
    void wrongUsageIsOneLine();
    void aBadInputIsOneLineAndNothingIsWritten_data();
    void aBadInputIsOneLineAndNothingIsWritten();
    void noInputIsOverwritten();
    void anOutputThatCannotBeWrittenIsTold();
    void aFormerRecordIsReplacedWhole();
    void onAFullDiskAFormerRecordStaysWhole_data();
    void onAFullDiskAFormerRecordStaysWhole();
    void aSystemWithoutFontsIsTold();
    void aHallOfAllThatIsPossibleIsRecorded();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    ToolRun report(const QStringList& options) const
    {
        return runBuiltTool(QStringList{QStringLiteral("report"), path("hall.tessel")} + options);
    }
    void writeHall(const QByteArray& text) const;
    QString recorded(const QStringList& options = {}) const;

    QTemporaryDir m_folder;
};

void TestReportCommand::init()
{
    TestCase::init();
    QDir(m_folder.path()).removeRecursively();
    QVERIFY(QDir().mkpath(m_folder.path()));
    writeHall(sampleHallText());
    putFile(path("find.json"), sampleFind());
    putFile(path("walk.json"), sampleWalk());
}

void TestReportCommand::writeHall(const QByteArray& text) const
{
    const HallJsonReading reading = readHallJson(text);
    QVERIFY2(reading.hall != nullptr, qPrintable(reading.faults.value(0)));
    QCOMPARE(writeHallFile(path("hall.tessel"), reading.hall->data()), QString());
}

/// The page of a record without faults.
QString TestReportCommand::recorded(const QStringList& options) const
{
    const ToolRun run = report(QStringList{QStringLiteral("-o"), path("hall.html")} + options);
    if (run.exitCode != 0 || !run.errors.isEmpty()) {
        QTest::qFail(qPrintable(run.errors), __FILE__, __LINE__);
    }
    return QString::fromUtf8(fileAt(path("hall.html")));
}

void TestReportCommand::aHallBecomesAPage()
{
    const QString page = recorded({QStringLiteral("--found"), path("find.json"),
                                   QStringLiteral("--walk"), path("walk.json")});
    QVERIFY(page.startsWith(u"<!DOCTYPE html>"));
    QVERIFY(page.contains(u"Y77"));
    QVERIFY(page.contains(u"every layout was read back from every hub"));
    QVERIFY(page.contains(u">hall.tessel<"));
    QVERIFY(!page.contains(m_folder.path()));
}

void TestReportCommand::aHallBecomesAPdf()
{
    const ToolRun run = report({QStringLiteral("-o"), path("hall.PDF"), QStringLiteral("--paper"),
                                QStringLiteral("letter")});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QString());
    const QByteArray pdf = fileAt(path("hall.PDF"));
    QVERIFY(pdf.startsWith("%PDF-"));
    QVERIFY(pdf.contains("/MediaBox [0 0 612.000000 792.000000]"));
}

void TestReportCommand::theSameInputGivesTheSameBytes_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("HTML") << path("a.html") << path("b.html");
    QTest::newRow("PDF") << path("a.pdf") << path("b.pdf");
}

void TestReportCommand::theSameInputGivesTheSameBytes()
{
    QFETCH(const QString, first);
    QFETCH(const QString, second);
    const QStringList walk{QStringLiteral("--walk"), path("walk.json"), QStringLiteral("-o")};
    {
        const Environment east("TZ", "Asia/Kolkata");
        QCOMPARE(report(walk + QStringList(first)).exitCode, 0);
    }
    const Environment west("TZ", "America/New_York");
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    QTRY_VERIFY(QDateTime::currentSecsSinceEpoch() != now);
    // Not only once: what hangs on chance may come out equal by chance.
    for (int run = 0; run < 4; ++run) {
        QCOMPARE(report(walk + QStringList(second)).exitCode, 0);
        QVERIFY(fileAt(first) == fileAt(second));
    }
}

void TestReportCommand::theDayIsTheFirstThatIsKnown_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("words");
    const QStringList given{QStringLiteral("--date"), QStringLiteral("2026-02-28")};
    const QStringList found{QStringLiteral("--found"), path("find.json")};
    const QStringList walk{QStringLiteral("--walk"), path("walk.json")};
    QTest::newRow("given") << found + walk + given
                           << QStringLiteral("2026-02-28, the day that was given");
    QTest::newRow("walk") << found + walk << QStringLiteral("2026-11-21, the day of the walk");
    QTest::newRow("search") << found << QStringLiteral("2026-11-20, the day of the search");
    QTest::newRow("file") << QStringList()
                          << QStringLiteral(
                                 "2025-06-07, the day on which the configuration was stored");
}

void TestReportCommand::theDayIsTheFirstThatIsKnown()
{
    QFETCH(const QStringList, options);
    QFETCH(const QString, words);
    QFile file(path("hall.tessel"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2025, 6, 7), QTime(12, 0)),
                             QFileDevice::FileModificationTime));
    file.close();
    const QString page = recorded(options);
    QVERIFY2(page.contains(words), qPrintable(page.left(4000)));
}

void TestReportCommand::aBrokenHallIsRecordedAsSuch()
{
    writeHall(changed(sampleHallText(), "\"removed\": [\"127.0.1.2\"], ", ""));
    const ToolRun run = report({QStringLiteral("-o"), path("hall.html")});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors,
             QStringLiteral("tesselctl: layout 1, room 1+2: 2 PX-HBs; 1 is possible\n"));
    const QByteArray page = fileAt(path("hall.html"));
    QVERIFY(page.contains("Not as it should be"));
    QVERIFY(page.contains("layout 1, room 1+2: 2 PX-HBs; 1 is possible"));
}

void TestReportCommand::aWalkThatWentWrongIsARecordAllTheSame()
{
    putFile(path("walk.json"), sampleWalk().replace("\"preset\": 2}", "\"preset\": 1}"));
    const ToolRun run = report(
        {QStringLiteral("-o"), path("hall.html"), QStringLiteral("--walk"), path("walk.json")});
    const QString line = QStringLiteral("the walk: not every layout was read back from every hub");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QStringLiteral("tesselctl: %1\n").arg(line));
    const QString page = QString::fromUtf8(fileAt(path("hall.html")));
    QVERIFY(page.contains(u"Not as it should be"));
    QVERIFY(page.contains(line));
    QVERIFY(page.contains(u"not everything was as it should be"));
    QCOMPARE(page.count(QStringLiteral("<strong>on 1</strong>")), 4);
}

void TestReportCommand::theWalkOfAnotherHallIsNamed()
{
    QByteArray other = sampleWalk();
    putFile(path("walk.json"), other.replace("1+2/3/4", "1/2").replace("1/2/3/4", "1+2"));
    const ToolRun run = report(
        {QStringLiteral("-o"), path("hall.html"), QStringLiteral("--walk"), path("walk.json")});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors, QStringLiteral("tesselctl: the walk was one through another hall\n"));
    QVERIFY(fileAt(path("hall.html")).contains("one through another hall"));
}

void TestReportCommand::aWalkFromBeforeTheLayoutsChangedIsNamed()
{
    putFile(path("walk.json"), sampleWalk().replace("1+2/3/4", "1/2+3/4"));
    const ToolRun run = report(
        {QStringLiteral("-o"), path("hall.html"), QStringLiteral("--walk"), path("walk.json")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u"layout 1 was 1/2+3/4 when it was walked, and is 1+2/3/4"),
             qPrintable(run.errors));
}

void TestReportCommand::aDeviceThatWasNotFoundAsItShouldIsNamed()
{
    QByteArray find = changed(sampleFind(), "127.0.1.7\", \"mac\": \"02:1A:FF:00:00:07",
                              "127.0.1.8\", \"mac\": \"02:1A:FF:00:00:08");
    find = changed(find, "\"taken\", \"reason\": \"taken\"",
                   "\"firmware-too-old\", \"reason\": \"firmware too old\"");
    putFile(path("find.json"), find);
    const ToolRun run = report(
        {QStringLiteral("-o"), path("hall.html"), QStringLiteral("--found"), path("find.json")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u"tesselctl: Hub-1 (127.0.1.1): firmware too old\n"),
             qPrintable(run.errors));
    QVERIFY2(run.errors.contains(u": it did not answer the search\n"), qPrintable(run.errors));
    QCOMPARE(run.errors.count(u'\n'), 2);
    const QByteArray page = fileAt(path("hall.html"));
    QVERIFY(page.contains("Not as it should be"));
    QVERIFY(page.contains(": it did not answer the search"));
}

void TestReportCommand::devicesOfAnotherHallAreLeftOutWithALine()
{
    QByteArray devices = sampleFind().chopped(2);
    for (int number = 1; number <= 7; ++number) {
        devices += ", {\"address\": \"127.0.9." + QByteArray::number(number) + "\"}";
    }
    putFile(path("find.json"), devices + "]}");
    const ToolRun run = report(
        {QStringLiteral("-o"), path("hall.html"), QStringLiteral("--found"), path("find.json")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors,
             QStringLiteral("tesselctl: the search tells of devices that the hall has not; they "
                            "are left out: 127.0.9.1, 127.0.9.2, 127.0.9.3, 127.0.9.4, 127.0.9.5 "
                            "and 2 more\n"));
}

void TestReportCommand::wrongUsageIsOneLine_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("reason");
    const QString o = QStringLiteral("-o");
    QTest::newRow("no output") << QStringList() << QStringLiteral("report: -o RECORD is missing");
    QTest::newRow("another ending")
        << QStringList{o, path("hall.txt")}
        << path("hall.txt") + QStringLiteral(": its name ends neither in .html nor in .pdf");
    QTest::newRow("another paper")
        << QStringList{o, path("hall.pdf"), QStringLiteral("--paper"), QStringLiteral("a5")}
        << QStringLiteral("report: --paper is neither a4 nor letter: a5");
    for (const char* day : {"2026-02-30", "22.11.2026", "2026-1-1", "today"}) {
        QTest::newRow(day) << QStringList{o, path("hall.pdf"), QStringLiteral("--date"),
                                          QString::fromLatin1(day)}
                           << QStringLiteral("report: --date is no day such as 2026-11-22: ") +
                                  QString::fromLatin1(day);
    }
}

void TestReportCommand::wrongUsageIsOneLine()
{
    QFETCH(const QStringList, options);
    QFETCH(const QString, reason);
    const ToolRun run = report(options);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
    QVERIFY2(run.errors.startsWith(QStringLiteral("tesselctl: ") + reason), qPrintable(run.errors));
}

void TestReportCommand::aBadInputIsOneLineAndNothingIsWritten_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* option, const QString& file,
                        const char* reason) {
        QTest::newRow(name) << QString::fromLatin1(option) << file << QString::fromLatin1(reason);
    };
    row("no search", "--found", path("none.json"),
        qPrintable(QStringLiteral(": ") + wordsForMissingFile()));
    row("a folder", "--found", m_folder.path(), ": this is a folder, not a file");
    row("an empty search", "--found", path("empty.json"), ": the file is empty");
    row("a walk for a search", "--found", path("walk.json"), ": .devices: this is missing");
    row("a search for a walk", "--walk", path("find.json"), ": .hubs: this is missing");
    row("no JSON", "--walk", path("text.json"), ": line 1, column 1: this is no object");
    row("a hall for a walk", "--walk", path("hall.tessel"), ": line 1, column 1: ");
}

void TestReportCommand::aBadInputIsOneLineAndNothingIsWritten()
{
    QFETCH(const QString, option);
    QFETCH(const QString, file);
    QFETCH(const QString, reason);
    putFile(path("empty.json"), {});
    putFile(path("text.json"), "text");
    putFile(path("hall.html"), "what was there");
    const ToolRun run = report({QStringLiteral("-o"), path("hall.html"), option, file});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
    QVERIFY2(run.errors.startsWith(QStringLiteral("tesselctl: ") + file + reason),
             qPrintable(run.errors));
    QCOMPARE(fileAt(path("hall.html")), QByteArray("what was there"));
}

void TestReportCommand::noInputIsOverwritten()
{
#ifdef Q_OS_WIN
    QSKIP("a link is a file of its own there");
#endif
    QVERIFY(QFile::link(path("walk.json"), path("walk.html")));
    QVERIFY(QFile::link(path("hall.tessel"), path("hall.pdf")));
    for (const char* name : {"walk.html", "hall.pdf"}) {
        const ToolRun run =
            report({QStringLiteral("--walk"), path("walk.json"), QStringLiteral("--found"),
                    path("find.json"), QStringLiteral("-o"), path(name)});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
        QVERIFY(run.errors.contains(u"this is the file that is read"));
    }
    QCOMPARE(fileAt(path("walk.json")), sampleWalk());
}

void TestReportCommand::anOutputThatCannotBeWrittenIsTold()
{
    const ToolRun run = report({QStringLiteral("-o"), path("no/folder/hall.html")});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
    QVERIFY(run.errors.contains(path("no/folder/hall.html")));
}

void TestReportCommand::aFormerRecordIsReplacedWhole()
{
    putFile(path("hall.html"), QByteArray(1000000, 'x'));
    QVERIFY(recorded().endsWith(u"</html>\n"));
    QCOMPARE(QDir(m_folder.path()).entryList({QStringLiteral("hall.html*")}).size(), 1);
}

void TestReportCommand::onAFullDiskAFormerRecordStaysWhole_data()
{
    QTest::addColumn<QString>("record");
    QTest::newRow("HTML") << path("hall.html");
    QTest::newRow("PDF") << path("hall.pdf");
}

void TestReportCommand::onAFullDiskAFormerRecordStaysWhole()
{
    if (!FileSizeLimit::isPossible()) {
        QSKIP("Files cannot be limited in size here.");
    }
    QFETCH(const QString, record);
    putFile(record, "former");
    ToolRun run;
    {
        const FileSizeLimit limit(20000);
        run = report({QStringLiteral("-o"), record});
    }
    QCOMPARE(run.errors,
             QStringLiteral("tesselctl: %1: it could not be written completely\n").arg(record));
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(fileAt(record), QByteArray("former"));
}

void TestReportCommand::aSystemWithoutFontsIsTold()
{
#ifdef Q_OS_WIN
    QSKIP("the system always has fonts");
#endif
    putFile(path("fonts.conf"), "<?xml version=\"1.0\"?><fontconfig></fontconfig>");
    const Environment noFonts("FONTCONFIG_FILE", path("fonts.conf").toUtf8());
    const ToolRun run = report({QStringLiteral("-o"), path("hall.pdf")});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.endsWith(u"this system has no fonts to write the record with; install "
                                 u"some, such as DejaVu\n"),
             qPrintable(run.errors));
    QVERIFY(!QFile::exists(path("hall.pdf")));
}

void TestReportCommand::aHallOfAllThatIsPossibleIsRecorded()
{
    QByteArray devices;
    for (int number = 0; number < 250; ++number) {
        const QByteArray last = QByteArray::number(number % 200 + 1);
        const QByteArray room = QByteArray::number(number % 4 + 1);
        devices += "{\"address\": \"127.0." + QByteArray::number(1 + number / 200) + '.' + last +
                   "\", \"model\": \"PX-DL8\", \"mac\": \"02:1A:FF:00:00:01\", \"room\": " + room +
                   ", \"label\": \"" + QByteArray(200, 'W') + "\"},";
    }
    devices.chop(1);
    QByteArray layouts;
    for (const char* rooms : {"1/2/3/4", "1+2/3/4", "1/2+3/4", "1/2/3+4", "1+2+3/4", "1/2+3+4",
                              "1+2/3+4", "1+2+3+4", "1+3/2/4", "1+3/2+4"}) {
        layouts += "{\"rooms\": \"" + QByteArray(rooms) + "\"},";
    }
    layouts.chop(1);
    writeHall("{\"rooms\": [\"11223344\", \"11223344\", \"11223344\", \"11223344\", \"........\", "
              "\"........\", \"........\", \"........\"], \"devices\": [" +
              devices + "], \"layouts\": [" + layouts + "]}");
    QCOMPARE(report({QStringLiteral("-o"), path("hall.pdf")}).exitCode, 1);
    const QByteArray pdf = fileAt(path("hall.pdf"));
    QVERIFY(pdf.count("/Type /Page\n") > 50);
}

TESSEL_TEST_MAIN(TestReportCommand)
#include "tst_reportcommand.moc"
