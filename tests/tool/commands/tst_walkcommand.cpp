#include "filesizelimit.h"
#include "followinghall.h"
#include "livetoolrun.h"
#include "ptytoolrun.h"
#include "testcase.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

const QString stage = QStringLiteral("127.33.1.1");
const QString gallery = QStringLiteral("127.33.1.2");

const QString walk = QStringLiteral("walk");
const QString yes = QStringLiteral("--yes");
const QString atOnce = QStringLiteral("--settle=0");
const QString shortWait = QStringLiteral("--wait=1");

/// Long enough to press Ctrl+C meanwhile.
const QString someSettle = QStringLiteral("--settle=4");

/// So long that nothing comes of it while a test runs.
const QString longSettle = QStringLiteral("--settle=600");
const QString longWait = QStringLiteral("--wait=600");

QStringList recalls(const SimulatedDevice* device)
{
    QStringList lines;
    for (const JournalEntry& entry : device->journal()) {
        if (entry.text.startsWith(u"ssrecall_ex config ")) {
            lines.append(entry.text.section(u' ', 2));
        }
    }
    return lines;
}

QString bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// As an earlier recall left them, of which the journals say nothing.
void recallOnBoth(const FollowingHall& site, int number)
{
    LiveToolRun before({QStringLiteral("recall"), QString::number(number), site.file.path()});
    QCOMPARE(before.ended().exitCode, 0);
    site.hall.device(stage)->clearJournal();
    site.hall.device(gallery)->clearJournal();
}

} // namespace

/// `walk` beside a hall over real sockets.
class TestWalkCommand : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyLayoutIsReadBackAndTheOldPresetIsActiveAgain();
    void whatWillBeHeardIsSaidAndNothingIsDoneWithoutAYes_data();
    void whatWillBeHeardIsSaidAndNothingIsDoneWithoutAYes();
    void interruptionOfTheQuestionRecallsNothing();
    void tableShowsLayoutsByHubsInEightyColumns();
    void resultIsKept();
    void keptResultIsTakenIntoARecord();
    void resultThatCannotBeKeptStopsBeforeAnythingIsHeard();
    void onAFullDiskAFormerResultStaysWhole();
    void resultDoesNotReplaceTheHall();
    void hubWhosePresetCouldNotBeReadIsNamed();
    void hubThatDoesNotGoBackIsNamed();
    void interruptionRestoresFirst();
    void closedTerminalRestoresFirst();
    void outputThatNobodyReadsEndsNoWalk();
    void secondInterruptionLeaves();
    void interruptionBeforeTheFirstLayoutRecallsNothing();
    void hubThatIsNotBackIsToldInTheResult_data();
    void hubThatIsNotBackIsToldInTheResult();
    void hallWhereNobodyAnswersIsLeftAlone();
    void fileThatIsNoneIsOneLine();
};

void TestWalkCommand::everyLayoutIsReadBackAndTheOldPresetIsActiveAgain()
{
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    LiveToolRun tool({walk, site.file.path(), yes, atOnce});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.errors.startsWith(u"tesselctl: 3 layouts will be recalled on 2 hubs"),
             qPrintable(run.errors));
    QVERIFY2(!run.errors.contains(u"Begin?"), qPrintable(run.errors));
    QCOMPARE(recalls(site.hall.device(stage)).join(u' '), QStringLiteral("1 2 3 2"));
    QCOMPARE(recalls(site.hall.device(gallery)).join(u' '), QStringLiteral("1 2 3 2"));
    QCOMPARE(site.hall.device(stage)->currentPreset(), 2);
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: layout 3: active on 2 of 2 hubs\n")),
             qPrintable(run.errors));
    QCOMPARE(site.hall.differences(), QStringList());
}

void TestWalkCommand::whatWillBeHeardIsSaidAndNothingIsDoneWithoutAYes_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("code");
    QTest::newRow("yes") << QByteArray("Yes\n") << 0;
    QTest::newRow("y") << QByteArray("y\n") << 0;
    QTest::newRow("no") << QByteArray("no\n") << 3;
    QTest::newRow("another word") << QByteArray("yesterday\n") << 3;
    QTest::newRow("an empty line") << QByteArray("\n") << 3;
    QTest::newRow("nobody there") << QByteArray() << 3;
}

void TestWalkCommand::whatWillBeHeardIsSaidAndNothingIsDoneWithoutAYes()
{
    QFETCH(const QByteArray, typed);
    const FollowingHall site(stage, gallery);
    LiveToolRun tool({walk, site.file.path(), atOnce}, typed);
    const ToolRun run = tool.ended();
    QTEST(run.exitCode, "code");
    QVERIFY2(run.errors.startsWith(u"tesselctl: 3 layouts will be recalled on 2 hubs"),
             qPrintable(run.errors));
    QVERIFY2(run.errors.contains(u"hears it"), qPrintable(run.errors));
    QCOMPARE(recalls(site.hall.device(stage)).isEmpty(), run.exitCode != 0);
    QCOMPARE(run.errors.contains(u"nothing was recalled"), run.exitCode != 0);
}

void TestWalkCommand::interruptionOfTheQuestionRecallsNothing()
{
    if (!PtyToolRun::isPossible()) {
        QSKIP("this system has no terminals that a test can type at");
    }
    const FollowingHall site(stage, gallery);
    PtyToolRun tool({walk, site.file.path(), atOnce});
    QVERIFY(tool.hasShown(QStringLiteral("Begin? (y/N)")));
    tool.type("\x03");
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"nothing was recalled"), qPrintable(run.errors));
    QVERIFY(tool.isEchoing());
    QCOMPARE(site.hall.device(stage)->exchangeNames(), QStringList());
}

void TestWalkCommand::tableShowsLayoutsByHubsInEightyColumns()
{
    const FollowingHall site(stage, gallery);
    site.hall.device(gallery)->setFault(
        {.exchange = Exchange::RecallCommand, .kind = FaultKind::NoEffect, .skip = 1});
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, shortWait});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    const QStringList lines = run.output.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 5);
    for (const QString& line : lines) {
        QVERIFY2(line.size() <= 80, qPrintable(line));
    }
    QCOMPARE(lines.at(2).simplified(), QStringLiteral("1 1/2/3 ok ok"));
    QCOMPARE(lines.at(3).simplified(), QStringLiteral("2 1+2/3 ok on 1"));
    QCOMPARE(lines.at(4).simplified(), QStringLiteral("3 1+2+3 ok on 1"));
}

void TestWalkCommand::resultIsKept()
{
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 3);
    site.hall.device(gallery)->setFault(
        {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer, .skip = 1});
    const QString kept = site.file.beside(QStringLiteral("result.json"));
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, shortWait, QStringLiteral("--json"),
                      QStringLiteral("-o"), kept});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    const QJsonObject object = QJsonDocument::fromJson(bytesOf(kept).toUtf8()).object();
    QCOMPARE(object, QJsonDocument::fromJson(run.output.toUtf8()).object());
    QVERIFY(QDateTime::fromString(object.value(QLatin1String("begun")).toString(), Qt::ISODate)
                .isValid());
    QVERIFY(!object.value(QLatin1String("ok")).toBool(true));
    const QJsonObject hub = object.value(QLatin1String("hubs")).toArray().at(0).toObject();
    QCOMPARE(hub.value(QLatin1String("before")).toInt(), 3);
    QCOMPARE(hub.value(QLatin1String("restored")).toInt(), 3);
    const QJsonObject layout = object.value(QLatin1String("layouts")).toArray().at(1).toObject();
    QCOMPARE(layout.value(QLatin1String("rooms")).toString(), QStringLiteral("1+2/3"));
    const QJsonArray hubs = layout.value(QLatin1String("hubs")).toArray();
    QCOMPARE(hubs.at(0).toObject().value(QLatin1String("preset")).toInt(), 2);
    QVERIFY(hubs.at(0).toObject().value(QLatin1String("ok")).toBool());
    QVERIFY(hubs.at(1).toObject().value(QLatin1String("preset")).isNull());
}

void TestWalkCommand::keptResultIsTakenIntoARecord()
{
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 1);
    const QString kept = site.file.beside(QStringLiteral("result.json"));
    const QString record = site.file.beside(QStringLiteral("hall.html"));
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, QStringLiteral("-o"), kept});
    QCOMPARE(tool.ended().exitCode, 0);
    LiveToolRun report({QStringLiteral("report"), site.file.path(), QStringLiteral("-o"), record,
                        QStringLiteral("--walk"), kept});
    const ToolRun run = report.ended();
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    QVERIFY(bytesOf(record).contains(u"every layout was read back from every hub"));
}

void TestWalkCommand::resultThatCannotBeKeptStopsBeforeAnythingIsHeard()
{
    const FollowingHall site(stage, gallery);
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, QStringLiteral("-o"),
                      site.file.beside(QStringLiteral("a/b"))});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(isOneLine(run.errors) && run.errors.contains(u"a/b: "), qPrintable(run.errors));
    QCOMPARE(site.hall.device(stage)->exchangeNames(), QStringList());
}

void TestWalkCommand::onAFullDiskAFormerResultStaysWhole()
{
    if (!FileSizeLimit::isPossible()) {
        QSKIP("Files cannot be limited in size here.");
    }
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 1);
    const QString kept = site.file.beside(QStringLiteral("result.json"));
    QFile former(kept);
    QVERIFY(former.open(QIODevice::WriteOnly) && former.write("former") == 6);
    former.close();
    ToolRun run;
    {
        const FileSizeLimit limit(100);
        LiveToolRun tool({walk, site.file.path(), yes, atOnce, QStringLiteral("-o"), kept});
        run = tool.ended();
    }
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.endsWith(
                 QStringLiteral("tesselctl: %1: it could not be written completely\n").arg(kept)),
             qPrintable(run.errors));
    QCOMPARE(bytesOf(kept), QStringLiteral("former"));
}

void TestWalkCommand::resultDoesNotReplaceTheHall()
{
    const HallOnDisk file(stage, gallery);
    const QString hall = bytesOf(file.path());
    LiveToolRun tool({walk, file.path(), yes, QStringLiteral("-o"), file.path()});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
    QCOMPARE(bytesOf(file.path()), hall);
}

void TestWalkCommand::hubWhosePresetCouldNotBeReadIsNamed()
{
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    site.hall.device(gallery)->setFault(
        {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer, .times = 1});
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, shortWait});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: Gallery (127.33.1.2): which preset was "
                                                "active before could not be read")),
             qPrintable(run.errors));
    QCOMPARE(site.hall.device(stage)->currentPreset(), 2);
    QCOMPARE(site.hall.device(gallery)->currentPreset(), 3);
}

void TestWalkCommand::hubThatDoesNotGoBackIsNamed()
{
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    site.hall.device(gallery)->setFault(
        {.exchange = Exchange::RecallCommand, .kind = FaultKind::ErrorAnswer, .skip = 3});
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, shortWait});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: Gallery (127.33.1.2): preset 2 was "
                                                "active before and is not again: on 3")),
             qPrintable(run.errors));
}

void TestWalkCommand::interruptionRestoresFirst()
{
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    LiveToolRun tool({walk, site.file.path(), yes, someSettle});
    QTRY_COMPARE_WITH_TIMEOUT(site.hall.device(stage)->currentPreset(), 1, 30000);
    QTRY_COMPARE_WITH_TIMEOUT(site.hall.device(gallery)->currentPreset(), 1, 30000);
    tool.interrupt();
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(recalls(site.hall.device(stage)).join(u' '), QStringLiteral("1 2"));
    QCOMPARE(site.hall.device(gallery)->currentPreset(), 2);
    QVERIFY2(run.errors.contains(u"interrupted: "), qPrintable(run.errors));
    QVERIFY2(run.output.contains(u"not tried"), qPrintable(run.output));
}

void TestWalkCommand::closedTerminalRestoresFirst()
{
    if (!LiveToolRun::knowsLostTerminals()) {
        QSKIP("this system tells no program that its terminal is gone");
    }
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    LiveToolRun tool({walk, site.file.path(), yes, someSettle});
    QTRY_COMPARE_WITH_TIMEOUT(site.hall.device(stage)->currentPreset(), 1, 30000);
    QTRY_COMPARE_WITH_TIMEOUT(site.hall.device(gallery)->currentPreset(), 1, 30000);
    tool.closeTerminal();
    QVERIFY(tool.hasSaid(QStringLiteral("interrupted: ")));
    tool.closeTerminal();
    QCOMPARE(tool.ended().exitCode, 1);
    QCOMPARE(recalls(site.hall.device(stage)).join(u' '), QStringLiteral("1 2"));
    QCOMPARE(site.hall.device(gallery)->currentPreset(), 2);
}

void TestWalkCommand::outputThatNobodyReadsEndsNoWalk()
{
    if (!LiveToolRun::knowsLostTerminals()) {
        QSKIP("this system tells no program that its terminal is gone");
    }
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    LiveToolRun tool({walk, site.file.path(), yes, atOnce}, {}, LiveToolRun::Reader::Gone);
    QCOMPARE(tool.ended().exitCode, 3);
    QCOMPARE(recalls(site.hall.device(stage)).join(u' '), QStringLiteral("1 2 3 2"));
    QCOMPARE(site.hall.device(gallery)->currentPreset(), 2);
}

void TestWalkCommand::secondInterruptionLeaves()
{
#ifdef Q_OS_WIN
    QSKIP("Wine ends by 0 what Ctrl+C ends");
#endif
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    site.hall.device(stage)->setFault(
        {.exchange = Exchange::RecallCommand, .kind = FaultKind::ErrorAnswer, .skip = 1});
    LiveToolRun tool({walk, site.file.path(), yes, longSettle, longWait});
    QTRY_COMPARE_WITH_TIMEOUT(site.hall.device(stage)->currentPreset(), 1, 30000);
    tool.interrupt();
    QVERIFY(tool.hasSaid(QStringLiteral("interrupted: ")));
    tool.interrupt();
    tool.ended();
    QVERIFY(tool.isKilled());
    QCOMPARE(site.hall.device(stage)->currentPreset(), 1);
}

void TestWalkCommand::interruptionBeforeTheFirstLayoutRecallsNothing()
{
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    site.hall.device(gallery)->setFault(
        {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer});
    const QString kept = site.file.beside(QStringLiteral("result.json"));
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, longWait, QStringLiteral("-o"), kept});
    QTRY_VERIFY_WITH_TIMEOUT(
        site.hall.device(gallery)->exchangeNames().contains(QStringLiteral("current-preset")),
        30000);
    tool.interrupt();
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.endsWith(u"interrupted.\ntesselctl: nothing was recalled\n"),
             qPrintable(run.errors));
    QCOMPARE(recalls(site.hall.device(stage)), QStringList());
    const QJsonObject object = QJsonDocument::fromJson(bytesOf(kept).toUtf8()).object();
    QVERIFY(!object.value(QLatin1String("ok")).toBool(true));
    const QJsonArray hubs = object.value(QLatin1String("hubs")).toArray();
    QCOMPARE(hubs.size(), 2);
    QVERIFY(hubs.at(1).toObject().value(QLatin1String("before")).isNull());
    QVERIFY(hubs.at(1).toObject().value(QLatin1String("back")).toBool());
}

void TestWalkCommand::hubThatIsNotBackIsToldInTheResult_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::newRow("does not go back")
        << Fault{.exchange = Exchange::RecallCommand, .kind = FaultKind::ErrorAnswer, .skip = 3};
    QTest::newRow("did not tell where it was")
        << Fault{.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer, .times = 1};
}

void TestWalkCommand::hubThatIsNotBackIsToldInTheResult()
{
    QFETCH(const Fault, fault);
    const FollowingHall site(stage, gallery);
    recallOnBoth(site, 2);
    site.hall.device(gallery)->setFault(fault);
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, shortWait, QStringLiteral("--json")});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    const QJsonObject object = QJsonDocument::fromJson(run.output.toUtf8()).object();
    QVERIFY(!object.value(QLatin1String("ok")).toBool(true));
    const QJsonArray hubs = object.value(QLatin1String("hubs")).toArray();
    QVERIFY(hubs.at(0).toObject().value(QLatin1String("back")).toBool());
    QVERIFY(!hubs.at(1).toObject().value(QLatin1String("back")).toBool(true));
}

void TestWalkCommand::hallWhereNobodyAnswersIsLeftAlone()
{
    const FollowingHall site(stage, gallery);
    for (const QString& hub : {stage, gallery}) {
        site.hall.device(hub)->setFault(
            {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer});
    }
    LiveToolRun tool({walk, site.file.path(), yes, atOnce, shortWait});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 3);
    const QStringList lines = run.errors.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(0).contains(u"hears it"), qPrintable(run.errors));
    QVERIFY2(lines.at(1).contains(u"no hub answered"), qPrintable(run.errors));
    QCOMPARE(recalls(site.hall.device(stage)), QStringList());
}

void TestWalkCommand::fileThatIsNoneIsOneLine()
{
    const HallOnDisk file(stage, gallery);
    LiveToolRun tool({walk, file.beside(QStringLiteral("none.tessel")), yes});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(isOneLine(run.errors) && run.errors.contains(u"none.tessel"), qPrintable(run.errors));
}

TESSEL_TEST_MAIN(TestWalkCommand)
#include "tst_walkcommand.moc"
