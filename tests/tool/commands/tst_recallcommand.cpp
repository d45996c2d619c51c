#include "followinghall.h"
#include "livetoolrun.h"
#include "shellword.h"
#include "testcase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

const QString stage = QStringLiteral("127.32.1.1");
const QString gallery = QStringLiteral("127.32.1.2");

// Enough for a hub that never will be there; those that are, end the wait themselves.
const QString shortWait = QStringLiteral("--wait=1");

} // namespace

/// `recall` beside a hall over real sockets.
class TestRecallCommand : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void allHubsAreOnTheLayoutAndAllIsWell();
    void jsonTellsWhatWasReadBack();
    void hubThatIsNotThereIsNamed_data();
    void hubThatIsNotThereIsNamed();
    void hallWhereNobodyAnswersIsLeftAlone();
    void realHubRefusesWhatItDoesNotHold();
    void otherDevicesAreLeftAlone();
    void operandsThatAreTurnedAreToldSo();
    void wrongUsageIsOneLine_data();
    void wrongUsageIsOneLine();
};

void TestRecallCommand::allHubsAreOnTheLayoutAndAllIsWell()
{
    const FollowingHall site(stage, gallery);
    LiveToolRun tool({QStringLiteral("recall"), QStringLiteral("2"), site.file.path()});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    QCOMPARE(site.hall.device(stage)->currentPreset(), 2);
    QCOMPARE(site.hall.device(gallery)->currentPreset(), 2);
    for (const char* shown : {"Layout 2", "Stage", "127.32.1.1", "Gallery", "127.32.1.2", "ok"}) {
        QVERIFY2(run.output.contains(QLatin1String(shown)), qPrintable(run.output));
    }
    QCOMPARE(site.hall.differences(), QStringList());
}

void TestRecallCommand::jsonTellsWhatWasReadBack()
{
    const FollowingHall site(stage, gallery);
    site.hall.device(gallery)->setFault({.kind = FaultKind::NoAnswer});
    LiveToolRun tool({QStringLiteral("recall"), QStringLiteral("3"), site.file.path(), shortWait,
                      QStringLiteral("--json")});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    const QJsonObject object = QJsonDocument::fromJson(run.output.toUtf8()).object();
    const QJsonArray expected{QJsonObject{{QStringLiteral("address"), stage},
                                          {QStringLiteral("label"), QStringLiteral("Stage")},
                                          {QStringLiteral("preset"), 3},
                                          {QStringLiteral("ok"), true}},
                              QJsonObject{{QStringLiteral("address"), gallery},
                                          {QStringLiteral("label"), QStringLiteral("Gallery")},
                                          {QStringLiteral("preset"), QJsonValue()},
                                          {QStringLiteral("ok"), false}}};
    QCOMPARE(object.value(QLatin1String("layout")).toInt(), 3);
    QCOMPARE(object.value(QLatin1String("hubs")).toArray(), expected);
}

void TestRecallCommand::hubThatIsNotThereIsNamed_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* result, const Fault& fault) {
        QTest::newRow(result) << fault << QString::fromLatin1(result);
    };
    row("on no preset", {.exchange = Exchange::RecallCommand, .kind = FaultKind::NoEffect});
    row("no answer", {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer});
}

void TestRecallCommand::hubThatIsNotThereIsNamed()
{
    QFETCH(const Fault, fault);
    QFETCH(const QString, result);
    const FollowingHall site(stage, gallery);
    site.hall.device(gallery)->setFault(fault);
    LiveToolRun tool({QStringLiteral("recall"), QStringLiteral("1"), site.file.path(), shortWait});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors,
             QStringLiteral("tesselctl: Gallery (127.32.1.2): layout 1: %1\n").arg(result));
    QVERIFY2(run.output.contains(result) && run.output.contains(u"ok"), qPrintable(run.output));
}

void TestRecallCommand::hallWhereNobodyAnswersIsLeftAlone()
{
    const FollowingHall site(stage, gallery);
    for (const QString& hub : {stage, gallery}) {
        site.hall.device(hub)->setFault(
            {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer});
    }
    LiveToolRun tool({QStringLiteral("recall"), QStringLiteral("1"), site.file.path(), shortWait});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(isOneLine(run.errors) && run.errors.contains(u"no hub answered"),
             qPrintable(run.errors));
    QCOMPARE(run.output, QString());
    QVERIFY(!site.hall.device(stage)->exchangeNames().contains(QStringLiteral("recall-command")));
}

void TestRecallCommand::realHubRefusesWhatItDoesNotHold()
{
    const HallOnDisk file(stage, gallery);
    Hall hall(*HallDescription::byCounts(2, 0, stage));
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    LiveToolRun tool({QStringLiteral("recall"), QStringLiteral("1"), file.path(), shortWait});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(QStringLiteral("Stage (127.32.1.1): layout 1: on no preset")),
             qPrintable(run.errors));
}

void TestRecallCommand::otherDevicesAreLeftAlone()
{
    const HallOnDisk file(stage, gallery);
    // The third one has the address of the microphone.
    HallDescription description = *HallDescription::byCounts(0, 3, stage);
    description.peripherals.last().address = QStringLiteral("127.32.9.9");
    Hall hall(description);
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    LiveToolRun tool({QStringLiteral("recall"), QStringLiteral("1"), file.path()});
    QCOMPARE(tool.ended().exitCode, 0);
    QCOMPARE(hall.device(QStringLiteral("127.32.9.9"))->exchangeNames(), QStringList());
}

void TestRecallCommand::operandsThatAreTurnedAreToldSo()
{
    const HallOnDisk file(stage, gallery);
    LiveToolRun tool({QStringLiteral("recall"), file.path(), QStringLiteral("2")});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.errors, QStringLiteral("tesselctl: recall: the layout's number comes first: "
                                        "tesselctl recall 2 %1\n")
                             .arg(shellWord(file.path())));
}

void TestRecallCommand::wrongUsageIsOneLine_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* number, const char* option, const char* reason) {
        QTest::newRow(reason) << QString::fromLatin1(number) << QString::fromLatin1(option)
                              << QString::fromLatin1(reason);
    };
    row("4", "--json", "has no layout 4\n");
    row("first", "--json", "has no layout first\n");
    row("02", "--json", "has no layout 02\n");
    row("1", "--wait=long", "recall: --wait is no number of seconds from 0 to 3600: long\n");
}

void TestRecallCommand::wrongUsageIsOneLine()
{
    QFETCH(const QString, number);
    QFETCH(const QString, option);
    QFETCH(const QString, reason);
    const FollowingHall site(stage, gallery);
    LiveToolRun tool({QStringLiteral("recall"), number, site.file.path(), option});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(isOneLine(run.errors) && run.errors.endsWith(reason), qPrintable(run.errors));
    QCOMPARE(site.hall.device(stage)->exchangeNames(), QStringList());
}

TESSEL_TEST_MAIN(TestRecallCommand)
#include "tst_recallcommand.moc"
