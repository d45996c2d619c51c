#include "commandrun.h"
#include "hallfile.h"
#include "halljson.h"
#include "showcommand.h"
#include "testcase.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

/// `show`.
class TestShowCommand : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRoomsAreDrawnWithTheirNumbers();
    void everyRoomListsItsDevicesAndCounts();
    void everyCombinedRoomTellsItsDevicesSidesAndPreset();
    void brokenLimitsAreMarkedToldAndAFailure();
    void aHallThatIsNotReadySaysWhatIsNotChosen();
    void aCombinedRoomWithoutDevicesSaysSo();
    void noLineIsWiderThanATerminal();
    void jsonIsWhatMakeTakesBack();
    void anUnreadableFileIsToldAndNothingElse();

private:
    CommandRun show(const QByteArray& text, const QStringList& options = {}) const;

    QTemporaryDir m_folder;
};

CommandRun TestShowCommand::show(const QByteArray& text, const QStringList& options) const
{
    const QString path = m_folder.filePath(QStringLiteral("hall.tessel"));
    const HallJsonReading reading = readHallJson(text);
    if (reading.hall == nullptr || !writeHallFile(path, reading.hall->data()).isEmpty()) {
        QTest::qFail(qPrintable(reading.faults.join(u'\n')), __FILE__, __LINE__);
        return {};
    }
    return runCommand(ShowCommand(), QStringList(path) + options);
}

void TestShowCommand::theRoomsAreDrawnWithTheirNumbers()
{
    const CommandRun run = show(sampleHallText());
    QCOMPARE(run.code, ExitCode::AllIsWell);
    QCOMPARE(run.errors, QString());
    QVERIFY2(run.output.startsWith(u"+---------------+---------------+\n"
                                   u"| 1   1   1   1 | 2   2   2   2 |\n"
                                   u"|               |               |\n"),
             qPrintable(run.output));
    QVERIFY(run.output.contains(u"| 3   3   3   3 | 4   4   4   4 |\n"
                                u"+---------------+---------------+\n"
                                u"|                               |\n"
                                u"+-------------------------------+\n"));
}

void TestShowCommand::everyRoomListsItsDevicesAndCounts()
{
    const QString output = show(sampleHallText()).output;
    QVERIFY2(output.contains(
                 u"\nRoom 1\n"
                 u"1 of 1 PX-HB, 1 of 16 microphones, 1 of 15 speakers, 2 of 16 microphones and\n"
                 u"speakers, 0 of 8 controllers\n"
                 u"\n"
                 u"Device     Model     Address    MAC address\n"
                 u"---------  --------  ---------  -----------------\n"
                 u"Hub-1      PX-HB     127.0.1.1  02:1A:FF:00:00:01\n"),
             qPrintable(output));
    QVERIFY(output.contains(u"\nIn no room\n"));
}

void TestShowCommand::everyCombinedRoomTellsItsDevicesSidesAndPreset()
{
    const QString output = show(sampleHallText()).output;
    QVERIFY2(output.contains(u"     1  1+2/3/4\n     2  1/2/3/4\n"), qPrintable(output));
    QVERIFY2(output.contains(u"\nLayout 1, room 1+2: preset \"Big \"hall\"\"\n"
                             u"1 of 1 PX-HB, 3 of 16 microphones and speakers, 0 of 8 controllers\n"
                             u"\n"
                             u"Device     Model     Address    Use\n"
                             u"---------  --------  ---------  -------\n"
                             u"Hub-1      PX-HB     127.0.1.1\n"
                             u"127.0.1.5  PX-NDE    127.0.1.5\n"
                             u"127.0.1.6  LQA4-08S  127.0.1.6  left\n"
                             u"127.0.1.2  PX-HB     127.0.1.2  removed\n"
                             u"127.0.1.7  LQA4-08S  127.0.1.7  right\n"),
             qPrintable(output));
    QVERIFY(output.contains(u"\nLayout 1, room 3: preset without a name\n"));
}

void TestShowCommand::brokenLimitsAreMarkedToldAndAFailure()
{
    const QByteArray text = changed(sampleHallText(), ", \"removed\": [\"127.0.1.2\"]", "");
    const QString told = QStringLiteral("2 PX-HBs; 1 is possible");
    for (const QStringList& options : {QStringList(), QStringList(QStringLiteral("--json"))}) {
        const CommandRun run = show(text, options);
        QCOMPARE(run.code, ExitCode::SomethingIsNot);
        QCOMPARE(run.errors.count(u'\n'), 1);
        QVERIFY2(
            run.errors.endsWith(QStringLiteral("hall.tessel: layout 1, room 1+2: %1\n").arg(told)),
            qPrintable(run.errors));
        QCOMPARE(run.output.contains(QStringLiteral("\n!! %1\n").arg(told)), options.isEmpty());
    }
}

void TestShowCommand::aHallThatIsNotReadySaysWhatIsNotChosen()
{
    const QByteArray text = changed(sampleHallText(), "\"layouts\"",
                                    "\"not-chosen\": [\"sets\", \"presets\"], \"layouts\"");
    const QString output = show(text).output;
    QVERIFY2(output.contains(u"\nLayout 2, room 4: no preset yet\n"
                             u"0 of 1 PX-HB, 0 of 16 microphones and speakers, 0 of 8 controllers\n"
                             u"No devices are chosen.\n"),
             qPrintable(output));
    const CommandRun empty = show("{}");
    QCOMPARE(empty.code, ExitCode::AllIsWell);
}

void TestShowCommand::aCombinedRoomWithoutDevicesSaysSo()
{
    const QByteArray text = changed(sampleHallText(), "\"room\": 4", "\"room\": 0");
    const QString output = show(text).output;
    QCOMPARE(output.count(u"\nThere are no devices in it.\n"), 2);
    QVERIFY2(!output.contains(u"No devices are chosen."), qPrintable(output));
}

void TestShowCommand::noLineIsWiderThanATerminal()
{
    QByteArray text = changed(sampleHallText(), "Hub-1", QByteArray("\xe4\xbc\x9a").repeated(60));
    text = changed(text, "Small", QByteArray(255, 'x'));
    const CommandRun run = show(text);
    QCOMPARE(lineThatIsTooWide(run.output), QString());
}

void TestShowCommand::jsonIsWhatMakeTakesBack()
{
    const CommandRun run = show(sampleHallText(), {QStringLiteral("--json")});
    QCOMPARE(run.code, ExitCode::AllIsWell);
    const HallJsonReading back = readHallJson(run.output.toUtf8());
    QCOMPARE(back.faults, QStringList());
    QCOMPARE(packHall(back.hall->data()), fileAt(m_folder.filePath(QStringLiteral("hall.tessel"))));
}

void TestShowCommand::anUnreadableFileIsToldAndNothingElse()
{
    const QString path = m_folder.filePath(QStringLiteral("none.tessel"));
    const CommandRun run = runCommand(ShowCommand(), {path});
    QCOMPARE(run.code, ExitCode::CouldNotBeTried);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.errors, QStringLiteral("tesselctl: %1: %2\n").arg(path, wordsForMissingFile()));
}

TESSEL_TEST_MAIN(TestShowCommand)
#include "tst_showcommand.moc"
