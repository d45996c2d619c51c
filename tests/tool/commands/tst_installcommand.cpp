#include "commandrun.h"
#include "filesizelimit.h"
#include "hall.h"
#include "hallfile.h"
#include "installablehall.h"
#include "livetoolrun.h"
#include "ptytoolrun.h"
#include "quickhall.h"
#include "shellword.h"
#include "testcase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <csignal>

namespace {

const QString stage = QStringLiteral("127.34.1.1");
const QString gallery = QStringLiteral("127.34.1.2");

const QString install = QStringLiteral("install");
const QString noSearch = QStringLiteral("--no-search");
const QString passwordsOption = QStringLiteral("--passwords");

/// Two hubs and a peripheral; the hubs know quickPassword().
HallDescription twoHubs()
{
    HallDescription description = quickHall(stage, 2, 1);
    description.hubs[0].label = QStringLiteral("Stage");
    description.hubs[1].label = QStringLiteral("Gallery");
    return description;
}

QByteArray line(const QString& hub, const QByteArray& password = "secret7")
{
    return hub.toLatin1() + ' ' + password + '\n';
}

QJsonObject hubIn(const ToolRun& run, int index)
{
    const QJsonObject object = QJsonDocument::fromJson(run.output.toUtf8()).object();
    return object.value(QLatin1String("hubs")).toArray().at(index).toObject();
}

QString text(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

/// What can be wrong with a hall that can be read.
struct HallFault
{
    const char* reason;
    void (*spoil)(DocumentData& hall);
};

const QList<HallFault>& hallFaults()
{
    static const QList<HallFault> faults{
        {"there are no layouts", [](DocumentData& hall) { hall.scenes.clear(); }},
        {"there is no hub in any room",
         [](DocumentData& hall) {
             hall.devices.find(stage)->roomNumber = 0;
             hall.devices.find(gallery)->roomNumber = 0;
         }},
        {"room 1: 2 PX-HB", [](DocumentData& hall) { hall.devices.find(gallery)->roomNumber = 1; }},
        {"device 127.34.1.1: \"00\" is no MAC address",
         [](DocumentData& hall) { hall.devices.find(stage)->macAddress = QStringLiteral("00"); }},
        {"Gallery (127.34.1.2): Making the preset of layout 1: what was entered for it is missing",
         [](DocumentData& hall) { hall.presets.clear(); }},
    };
    return faults;
}

} // namespace

/// `install` beside a hall over real sockets: with a file of passwords, and at a terminal.
class TestInstallCommand : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyHubIsDone();
    void jsonTellsOutcomeAndReason();
    void passwordThatIsWrongIsSentOnce();
    void hubWithoutPasswordOfTheFileIsNamedWhereNobodyCanBeAsked();
    void firstPasswordOfTheFileIsSetAndUsed();
    void firstPasswordThatCannotBeOneIsNotSent();
    void logHasTheRequestsAndNoPassword();
    void logThatIsCutIsNamed();
    void outputThatIsAnInputIsRefused();
    void hallThatMakesNoSenseIsNotInstalled_data();
    void hallThatMakesNoSenseIsNotInstalled();
    void wrongUsageIsOneLine_data();
    void wrongUsageIsOneLine();
    void passwordsThatOthersMayReadAreRefused();
    void hubAloneLeavesTheOthersAndSaysSo();
    void hubThatRefusesTheRecallIsNotCalledOnTheLayout();
    void interruptionNamesWhatIsNotFinished();
    void passwordsAreTypedUnseen();
    void wrongPasswordIsAskedForAgain();
    void answerThatSaysNothingOfThePasswordIsTold();
    void answerThatSaysNothingOfThePasswordOfTheFileIsTold();
    void emptyPasswordIsNotSent();
    void firstPasswordIsTypedTwice();
    void firstPasswordThatIsRefusedIsToldWhy_data();
    void firstPasswordThatIsRefusedIsToldWhy();
    void hubThatDoesNotTakeItsFirstPasswordIsToldWhy();
    void endOfInputLeavesTheHubOut();
    void nobodyIsAskedWhereNobodyReadsTheQuestion();
    void lostTerminalBeginsNoTransfer_data();
    void lostTerminalBeginsNoTransfer();
    void keysThatStopOrQuitDoNotAtThePrompt_data();
    void keysThatStopOrQuitDoNotAtThePrompt();
    void interruptedPromptShowsAgainWhatIsTyped_data();
    void interruptedPromptShowsAgainWhatIsTyped();
    void barsKeepToEightyColumns();
    void barsOnANarrowTerminalAreDrawnOver();
    void recallOfTheOthersIsOfferedAndDone_data();
    void recallOfTheOthersIsOfferedAndDone();
    void interruptionOfTheOfferEndsOrderly();
};

#define START_HALL(DESCRIPTION)                                                                    \
    const HallDescription description = DESCRIPTION;                                               \
    const InstallableHall file(description);                                                       \
    QVERIFY(!file.path().isEmpty());                                                               \
    Hall hall(description);                                                                        \
    QString error;                                                                                 \
    QVERIFY2(hall.start(&error), qPrintable(error))

#define NEED_A_TERMINAL()                                                                          \
    if (!PtyToolRun::isPossible())                                                                 \
    QSKIP("this system has no terminals that a test can type at")

void TestInstallCommand::everyHubIsDone()
{
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    LiveToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    const ToolRun run = tool.ended();
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QCOMPARE(run.errors.split(u'\n').size(), 5);
    for (const char* said : {"Stage (127.34.1.1): started", "Stage (127.34.1.1): done",
                             "Gallery (127.34.1.2): started", "Gallery (127.34.1.2): done"}) {
        QVERIFY2(run.errors.contains(QLatin1String(said)), qPrintable(run.errors));
    }
    QCOMPARE(run.output.count(QStringLiteral("Done")), 2);
    QCOMPARE(hall.hub(stage)->recalledPreset(), 1);
    QCOMPARE(hall.hub(stage)->presets().size(), 2);
    QCOMPARE(hall.hub(gallery)->recalledPreset(), 1);
    QCOMPARE(hall.differences(), QStringList());
}

void TestInstallCommand::jsonTellsOutcomeAndReason()
{
    START_HALL(twoHubs());
    hall.hub(gallery)->setFault(
        {.exchange = Exchange::HubFile, .kind = FaultKind::Status, .number = 507});
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    LiveToolRun tool(
        {install, file.path(), noSearch, passwordsOption, passwords, QStringLiteral("--json")});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(text(hubIn(run, 0), "address"), stage);
    QCOMPARE(text(hubIn(run, 0), "label"), QStringLiteral("Stage"));
    QCOMPARE(text(hubIn(run, 0), "outcome"), QStringLiteral("done"));
    QCOMPARE(text(hubIn(run, 0), "reason"), QString());
    QCOMPARE(text(hubIn(run, 1), "outcome"), QStringLiteral("error"));
    QVERIFY(text(hubIn(run, 1), "reason")
                .startsWith(QStringLiteral("Storing the hub's own file for layout 1: the hub "
                                           "answered 507 ")));
    QVERIFY(run.errors.contains(QStringLiteral("Gallery (127.34.1.2): error: Storing")));
}

void TestInstallCommand::passwordThatIsWrongIsSentOnce()
{
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery, "wrong77"));
    LiveToolRun tool(
        {install, file.path(), noSearch, passwordsOption, passwords, QStringLiteral("--json")});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(text(hubIn(run, 0), "outcome"), QStringLiteral("done"));
    QCOMPARE(text(hubIn(run, 1), "reason"),
             QStringLiteral("Logging in: the hub refused the password of ") + passwords);
    QCOMPARE(hall.hub(gallery)->exchangeNames().count(exchangeName(Exchange::LogIn)), 1);
    QVERIFY(!run.errors.contains(u"wrong77") && !run.output.contains(u"wrong77"));
}

void TestInstallCommand::hubWithoutPasswordOfTheFileIsNamedWhereNobodyCanBeAsked()
{
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage));
    LiveToolRun tool(
        {install, file.path(), noSearch, passwordsOption, passwords, QStringLiteral("--json")});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(text(hubIn(run, 0), "outcome"), QStringLiteral("done"));
    QCOMPARE(text(hubIn(run, 1), "reason"),
             QStringLiteral("Logging in: %1 has no line for it, and standard input is no terminal "
                            "to ask for the password")
                 .arg(passwords));
}

void TestInstallCommand::firstPasswordOfTheFileIsSetAndUsed()
{
    HallDescription fresh = twoHubs();
    fresh.hubs[1].password.reset();
    START_HALL(fresh);
    const QString passwords =
        file.privateFile("passwords", line(stage) + line(gallery, "Opensesame1"));
    LiveToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    QCOMPARE(tool.ended().exitCode, 0);
    QCOMPARE(hall.hub(gallery)->recalledPreset(), 1);
}

void TestInstallCommand::firstPasswordThatCannotBeOneIsNotSent()
{
    HallDescription fresh = twoHubs();
    fresh.hubs[1].password.reset();
    START_HALL(fresh);
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery, "a b"));
    LiveToolRun tool(
        {install, file.path(), noSearch, passwordsOption, passwords, QStringLiteral("--json")});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(text(hubIn(run, 1), "reason").endsWith(u"4 to 16 letters and digits are needed"),
             qPrintable(run.output));
    QVERIFY(!hall.hub(gallery)->exchangeNames().contains(exchangeName(Exchange::SetPassword)));
}

void TestInstallCommand::logHasTheRequestsAndNoPassword()
{
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    const QString log = file.beside("log");
    LiveToolRun tool(
        {install, file.path(), noSearch, passwordsOption, passwords, QStringLiteral("--log"), log});
    QCOMPARE(tool.ended().exitCode, 0);
    const QByteArray written = fileAt(log);
    QVERIFY(written.contains("api/v0/auth/authenticate") && written.contains("127.34.1.2"));
    QVERIFY(!written.contains("secret7"));
}

void TestInstallCommand::logThatIsCutIsNamed()
{
    if (!FileSizeLimit::isPossible()) {
        QSKIP("Files cannot be limited in size here.");
    }
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    const QString log = file.beside("log");
    ToolRun run;
    {
        const FileSizeLimit limit(300);
        LiveToolRun tool({install, file.path(), noSearch, passwordsOption, passwords,
                          QStringLiteral("--log"), log});
        run = tool.ended();
    }
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: %1: it is not complete: ").arg(log)),
             qPrintable(run.errors));
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output.count(QStringLiteral("Done")), 2);
}

void TestInstallCommand::outputThatIsAnInputIsRefused()
{
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage));
    for (const QString& input : {file.path(), passwords}) {
        const QByteArray before = fileAt(input);
        LiveToolRun tool({install, file.path(), noSearch, passwordsOption, passwords,
                          QStringLiteral("--log"), input});
        const ToolRun run = tool.ended();
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
        QCOMPARE(fileAt(input), before);
    }
    QCOMPARE(hall.hub(stage)->exchangeNames(), QStringList());
}

void TestInstallCommand::hallThatMakesNoSenseIsNotInstalled_data()
{
    QTest::addColumn<int>("fault");
    for (int index = 0; index < hallFaults().size(); ++index) {
        QTest::newRow(hallFaults().at(index).reason) << index;
    }
}

void TestInstallCommand::hallThatMakesNoSenseIsNotInstalled()
{
    QFETCH(const int, fault);
    START_HALL(twoHubs());
    const HallReading reading = readHallFile(file.path());
    hallFaults().at(fault).spoil(reading.hall->data());
    QCOMPARE(writeHallFile(file.path(), reading.hall->data()), QString());
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    LiveToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    const QString reason = QStringLiteral("tesselctl: %1: %2")
                               .arg(file.path(), QLatin1String(hallFaults().at(fault).reason));
    QVERIFY2(run.errors.contains(reason), qPrintable(run.errors));
    QCOMPARE(run.output, QString());
    QCOMPARE(hall.hub(stage)->exchangeNames(), QStringList());
}

void TestInstallCommand::wrongUsageIsOneLine_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a strange hub")
        << QStringList{noSearch, QStringLiteral("--hub=127.34.1.3")}
        << QStringLiteral(": 127.34.1.3 is no hub in a room of this hall\n");
    QTest::newRow("no seconds") << QStringList{QStringLiteral("--wait=long")}
                                << QStringLiteral("install: --wait is no number of seconds from 0 "
                                                  "to 3600: long\n");
}

void TestInstallCommand::wrongUsageIsOneLine()
{
    QFETCH(const QStringList, options);
    QFETCH(const QString, reason);
    START_HALL(twoHubs());
    LiveToolRun tool(QStringList{install, file.path()} + options);
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(isOneLine(run.errors) && run.errors.endsWith(reason), qPrintable(run.errors));
    QCOMPARE(hall.hub(stage)->exchangeNames(), QStringList());
}

void TestInstallCommand::passwordsThatOthersMayReadAreRefused()
{
#ifdef Q_OS_WIN
    QSKIP("this system has no permissions that are told by a file alone");
#endif
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage));
    QVERIFY(QFile::setPermissions(passwords, QFileDevice::ReadOwner | QFileDevice::ReadGroup));
    LiveToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(isOneLine(run.errors) && run.errors.contains(u"chmod 600"), qPrintable(run.errors));
    QCOMPARE(hall.hub(stage)->exchangeNames(), QStringList());
}

void TestInstallCommand::hubAloneLeavesTheOthersAndSaysSo()
{
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage));
    LiveToolRun tool({install, file.path(), noSearch, passwordsOption, passwords,
                      QStringLiteral("--hub"), stage});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.errors.contains(QStringLiteral("Gallery (127.34.1.2)")), qPrintable(run.errors));
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl recall 1 ") + shellWord(file.path())),
             qPrintable(run.errors));
    QCOMPARE(hall.hub(stage)->recalledPreset(), 1);
    QCOMPARE(hall.hub(gallery)->exchangeNames(), QStringList());
}

void TestInstallCommand::hubThatRefusesTheRecallIsNotCalledOnTheLayout()
{
    START_HALL(twoHubs());
    hall.hub(stage)->setFault({.exchange = Exchange::Recall,
                               .kind = FaultKind::Body,
                               .bytes = R"({"request":"refused"})"});
    const QString passwords = file.privateFile("passwords", line(stage));
    LiveToolRun tool({install, file.path(), noSearch, passwordsOption, passwords,
                      QStringLiteral("--hub"), stage});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.output.contains(u"Done") && run.output.contains(u"did not do it"),
             qPrintable(run.output));
    QVERIFY2(run.errors.contains(
                 u"was told to recall layout 1; these hubs may be on another one: Gallery"),
             qPrintable(run.errors));
}

void TestInstallCommand::interruptionNamesWhatIsNotFinished()
{
    START_HALL(twoHubs());
    hall.hub(gallery)->setFault({.exchange = Exchange::PresetEntry, .kind = FaultKind::Silence});
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    LiveToolRun tool(
        {install, file.path(), noSearch, passwordsOption, passwords, QStringLiteral("--json")});
    QVERIFY(tool.hasSaid(QStringLiteral("Stage (127.34.1.1): done")));
    QTRY_VERIFY_WITH_TIMEOUT(
        hall.hub(gallery)->exchangeNames().contains(exchangeName(Exchange::PresetEntry)), 30000);
    tool.interrupt();
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(text(hubIn(run, 0), "outcome"), QStringLiteral("done"));
    QCOMPARE(text(hubIn(run, 1), "outcome"), QStringLiteral("error"));
    QVERIFY2(text(hubIn(run, 1), "reason").endsWith(u"it was broken off and is not finished"),
             qPrintable(run.output));
}

void TestInstallCommand::passwordsAreTypedUnseen()
{
    NEED_A_TERMINAL();
    START_HALL(twoHubs());
    PtyToolRun tool({install, file.path(), noSearch});
    for (const char* hub : {"Stage (127.34.1.1): ", "Gallery (127.34.1.2): "}) {
        QVERIFY(tool.hasShown(QStringLiteral("password of ") + QLatin1String(hub)));
        QVERIFY(!tool.isEchoing());
        tool.type("secret7\n");
    }
    const ToolRun run = tool.ended();
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY(tool.isEchoing());
    QVERIFY(!run.errors.contains(u"secret7"));
    QCOMPARE(hall.hub(gallery)->recalledPreset(), 1);
}

void TestInstallCommand::wrongPasswordIsAskedForAgain()
{
    NEED_A_TERMINAL();
    START_HALL(twoHubs());
    PtyToolRun tool({install, file.path(), noSearch, QStringLiteral("--hub"), stage});
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    tool.type("wrong\n");
    QVERIFY(tool.hasShown(QStringLiteral("the password is wrong")));
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    tool.type("secret7\n");
    QVERIFY(tool.hasShown(QStringLiteral("(y/N)")));
    tool.type("\n");
    QCOMPARE(tool.ended().exitCode, 0);
    QCOMPARE(hall.hub(stage)->recalledPreset(), 1);
}

void TestInstallCommand::answerThatSaysNothingOfThePasswordIsTold()
{
    NEED_A_TERMINAL();
    START_HALL(twoHubs());
    hall.hub(stage)->setFault(
        {.exchange = Exchange::LogIn, .kind = FaultKind::Status, .number = 503, .times = 1});
    const QString passwords = file.privateFile("passwords", line(gallery));
    PtyToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    tool.type("secret7\n");
    QVERIFY(tool.hasShown(QStringLiteral("the password may be right")));
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    tool.type("secret7\n");
    const ToolRun run = tool.ended();
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY2(run.errors.contains(u"503 Service"), qPrintable(run.errors));
    QVERIFY2(!run.errors.contains(u"the password is wrong"), qPrintable(run.errors));
}

void TestInstallCommand::answerThatSaysNothingOfThePasswordOfTheFileIsTold()
{
    START_HALL(twoHubs());
    hall.hub(gallery)->setFault(
        {.exchange = Exchange::LogIn, .kind = FaultKind::Status, .number = 503});
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    LiveToolRun tool(
        {install, file.path(), noSearch, passwordsOption, passwords, QStringLiteral("--json")});
    const QString reason = text(hubIn(tool.ended(), 1), "reason");
    QVERIFY2(reason.startsWith(u"Logging in: the hub answered 503 ") &&
                 reason.endsWith(QStringLiteral(" to the password of ") + passwords),
             qPrintable(reason));
}

void TestInstallCommand::emptyPasswordIsNotSent()
{
    NEED_A_TERMINAL();
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(gallery));
    PtyToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    tool.type("\n");
    QVERIFY(tool.hasShown(QStringLiteral("nothing was typed; Ctrl+D leaves it out")));
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    QVERIFY(!tool.isEchoing());
    tool.type("secret7\n");
    QCOMPARE(tool.ended().exitCode, 0);
    QCOMPARE(hall.hub(stage)->exchangeNames().count(exchangeName(Exchange::LogIn)), 1);
}

void TestInstallCommand::firstPasswordIsTypedTwice()
{
    NEED_A_TERMINAL();
    HallDescription fresh = twoHubs();
    fresh.hubs[0].password.reset();
    START_HALL(fresh);
    const QString passwords = file.privateFile("passwords", line(gallery));
    PtyToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    const QString once = QStringLiteral("new password of ");
    const QString again = QStringLiteral("once more, the new password of ");
    QVERIFY(tool.hasShown(once));
    tool.type("abc\n");
    QVERIFY(tool.hasShown(QStringLiteral("4 to 16 letters and digits are needed")));
    QVERIFY(tool.hasShown(once));
    tool.type("Opensesame1\n");
    QVERIFY(tool.hasShown(again));
    tool.type("Opensesame2\n");
    QVERIFY(tool.hasShown(QStringLiteral("the two passwords are not equal")));
    QVERIFY(tool.hasShown(once));
    tool.type("Opensesame1\n");
    QVERIFY(tool.hasShown(again));
    tool.type("Opensesame1\n");
    const ToolRun run = tool.ended();
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY(!run.errors.contains(u"Opensesame"));
    QCOMPARE(hall.hub(stage)->exchangeNames().count(exchangeName(Exchange::SetPassword)), 1);
    QCOMPARE(hall.hub(stage)->recalledPreset(), 1);
}

void TestInstallCommand::firstPasswordThatIsRefusedIsToldWhy_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("reason");
    QTest::newRow("too short") << QByteArray("abc\n") << QStringLiteral("it is too short: 4 to 16");
    QTest::newRow("nothing") << QByteArray("\n") << QStringLiteral("it is too short: 4 to 16");
    QTest::newRow("too long") << QByteArray("a2345678901234567\n")
                              << QStringLiteral("it is too long: 4 to 16");
    QTest::newRow("a blank") << QByteArray("open sesame\n")
                             << QStringLiteral("it has a character that is neither A to Z nor");
}

void TestInstallCommand::firstPasswordThatIsRefusedIsToldWhy()
{
    NEED_A_TERMINAL();
    QFETCH(const QByteArray, typed);
    QFETCH(const QString, reason);
    HallDescription fresh = twoHubs();
    fresh.hubs[0].password.reset();
    START_HALL(fresh);
    PtyToolRun tool({install, file.path(), noSearch, QStringLiteral("--hub"), stage});
    QVERIFY(tool.hasShown(QStringLiteral("new password of Stage")));
    tool.type(typed);
    QVERIFY2(tool.hasShown(reason), qPrintable(tool.screen()));
    QVERIFY(tool.hasShown(QStringLiteral("new password of Stage")));
    tool.type("\x04");
    QCOMPARE(tool.ended().exitCode, 1);
    QVERIFY(!hall.hub(stage)->exchangeNames().contains(exchangeName(Exchange::SetPassword)));
}

void TestInstallCommand::hubThatDoesNotTakeItsFirstPasswordIsToldWhy()
{
    NEED_A_TERMINAL();
    HallDescription fresh = twoHubs();
    fresh.hubs[0].password.reset();
    START_HALL(fresh);
    hall.hub(stage)->setFault(
        {.exchange = Exchange::SetPassword, .kind = FaultKind::Status, .number = 503});
    PtyToolRun tool({install, file.path(), noSearch, QStringLiteral("--hub"), stage});
    for (const char* question : {"new password of Stage", "once more"}) {
        QVERIFY(tool.hasShown(QLatin1String(question)));
        tool.type("Opensesame1\n");
    }
    QVERIFY2(tool.hasShown(QStringLiteral("it did not take the password: the hub answered")),
             qPrintable(tool.screen()));
    QVERIFY2(tool.hasShown(QStringLiteral("503 Service")), qPrintable(tool.screen()));
    QVERIFY(tool.hasShown(QStringLiteral("new password of Stage")));
    tool.type("\x04");
    QCOMPARE(tool.ended().exitCode, 1);
}

void TestInstallCommand::endOfInputLeavesTheHubOut()
{
    NEED_A_TERMINAL();
    START_HALL(twoHubs());
    PtyToolRun tool({install, file.path(), noSearch, QStringLiteral("--json")});
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    tool.type("\x04");
    QVERIFY(tool.hasShown(QStringLiteral("password of Gallery")));
    tool.type("secret7\n");
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(text(hubIn(run, 0), "reason"), QStringLiteral("Logging in: you left it out"));
    QCOMPARE(text(hubIn(run, 1), "outcome"), QStringLiteral("done"));
}

void TestInstallCommand::nobodyIsAskedWhereNobodyReadsTheQuestion()
{
    NEED_A_TERMINAL();
    START_HALL(twoHubs());
    PtyToolRun tool({install, file.path(), noSearch, QStringLiteral("--json")},
                    {.errorsOnScreen = false});
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(text(hubIn(run, 0), "reason"),
             QStringLiteral("Logging in: standard error is no terminal to ask for the password, "
                            "and there is no --passwords"));
}

void TestInstallCommand::lostTerminalBeginsNoTransfer_data()
{
    QTest::addColumn<bool>("hearsHangUp");
    QTest::newRow("with the system's signal") << true;
    QTest::newRow("under nohup") << false;
}

void TestInstallCommand::lostTerminalBeginsNoTransfer()
{
    NEED_A_TERMINAL();
    QFETCH(const bool, hearsHangUp);
    START_HALL(twoHubs());
    PtyToolRun tool({install, file.path(), noSearch}, {.hearsHangUp = hearsHangUp});
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    tool.type("secret7\n");
    QVERIFY(tool.hasShown(QStringLiteral("password of Gallery")));
    const QString logIn = exchangeName(Exchange::LogIn);
    QTRY_VERIFY_WITH_TIMEOUT(hall.hub(stage)->exchangeNames().contains(logIn), 30000);
    tool.closeTerminal();
    const ToolRun run = tool.ended();
    // The signal may come so late that it ends the tool at once.
    QVERIFY(hearsHangUp || run.output.count(QStringLiteral("Error")) == 2);
    QCOMPARE(hall.hub(stage)->exchangeNames().last(), logIn);
    QVERIFY(!hall.hub(gallery)->exchangeNames().contains(logIn));
}

void TestInstallCommand::keysThatStopOrQuitDoNotAtThePrompt_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("Ctrl+Z") << QByteArray("\x1a");
    QTest::newRow("Ctrl+\\") << QByteArray("\x1c");
}

/// Such a key would forget what was typed before it; switched off it is a letter, which is erased.
void TestInstallCommand::keysThatStopOrQuitDoNotAtThePrompt()
{
    NEED_A_TERMINAL();
    QFETCH(const QByteArray, key);
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(gallery));
    PtyToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage")));
    tool.type("secret" + key + "\x7f" + "7\n\x04");
    const ToolRun run = tool.ended();
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY(tool.isEchoing());
}

void TestInstallCommand::interruptedPromptShowsAgainWhatIsTyped_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("Ctrl+C") << SIGINT;
#ifdef SIGQUIT
    QTest::newRow("a wish to quit") << SIGQUIT;
#endif
}

void TestInstallCommand::interruptedPromptShowsAgainWhatIsTyped()
{
    NEED_A_TERMINAL();
    QFETCH(const int, number);
    START_HALL(twoHubs());
    PtyToolRun tool({install, file.path(), noSearch});
    QVERIFY(tool.hasShown(QStringLiteral("password of Stage (127.34.1.1): ")));
    QVERIFY(!tool.isEchoing());
    if (number == SIGINT) {
        tool.type("\x03");
    } else {
        tool.signal(number);
    }
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 1);
    QVERIFY(tool.isEchoing());
    QVERIFY2(run.errors.contains(u"interrupted"), qPrintable(run.errors));
    QCOMPARE(run.errors.count(QStringLiteral("password of Stage")), 1);
    QCOMPARE(run.output.count(QStringLiteral("Error")), 2);
    QVERIFY(!hall.hub(stage)->exchangeNames().contains(exchangeName(Exchange::LogIn)));
}

void TestInstallCommand::barsKeepToEightyColumns()
{
    NEED_A_TERMINAL();
    HallDescription named = twoHubs();
    named.hubs[0].label = QString(64, u'x');
    START_HALL(named);
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    PtyToolRun tool({install, file.path(), noSearch, passwordsOption, passwords});
    const ToolRun run = tool.ended();
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY2(run.errors.contains(u"[######################] done"), qPrintable(run.errors));
    QString plain = run.errors;
    plain.replace(u'\r', u'\n').remove(QStringLiteral("\x1b[J")).remove(QStringLiteral("\x1b[1A"));
    QCOMPARE(lineThatIsTooWide(plain), QString());
    QCOMPARE(lineThatIsTooWide(run.output), QString());
}

void TestInstallCommand::barsOnANarrowTerminalAreDrawnOver()
{
    NEED_A_TERMINAL();
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    PtyToolRun tool({install, file.path(), noSearch, passwordsOption, passwords}, {.columns = 40});
    const ToolRun run = tool.ended();
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    // Each of the two bars takes two rows.
    QVERIFY2(run.errors.contains(QStringLiteral("\r\x1b[3A\x1b[J")), qPrintable(run.errors));
    QVERIFY(!run.errors.contains(QStringLiteral("\x1b[1A")));
}

void TestInstallCommand::recallOfTheOthersIsOfferedAndDone_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("isRecalled");
    QTest::newRow("y") << QByteArray("y\n") << true;
    QTest::newRow("n") << QByteArray("n\n") << false;
    QTest::newRow("Return") << QByteArray("\n") << false;
}

void TestInstallCommand::recallOfTheOthersIsOfferedAndDone()
{
    NEED_A_TERMINAL();
    QFETCH(const QByteArray, answer);
    QFETCH(const bool, isRecalled);
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage) + line(gallery));
    LiveToolRun first({install, file.path(), noSearch, passwordsOption, passwords});
    QCOMPARE(first.ended().exitCode, 0);
    PtyToolRun tool({install, file.path(), noSearch, passwordsOption, passwords,
                     QStringLiteral("--hub"), stage});
    QVERIFY(tool.hasShown(QStringLiteral("Recall layout 1 on all hubs now? (y/N)")));
    tool.type(answer);
    const ToolRun run = tool.ended();
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QCOMPARE(run.errors.contains(QStringLiteral("layout 1 is active on all hubs")), isRecalled);
    QCOMPARE(hall.hub(gallery)->exchangeNames().contains(exchangeName(Exchange::RecallCommand)),
             isRecalled);
}

void TestInstallCommand::interruptionOfTheOfferEndsOrderly()
{
    NEED_A_TERMINAL();
    START_HALL(twoHubs());
    const QString passwords = file.privateFile("passwords", line(stage));
    PtyToolRun tool({install, file.path(), noSearch, passwordsOption, passwords,
                     QStringLiteral("--hub"), stage});
    QVERIFY(tool.hasShown(QStringLiteral("Recall layout 1 on all hubs now? (y/N)")));
    tool.type("\x03");
    const ToolRun run = tool.ended();
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"all hubs on one layout: tesselctl recall 1"),
             qPrintable(run.errors));
    QVERIFY(tool.isEchoing());
    QCOMPARE(hall.hub(gallery)->exchangeNames(), QStringList());
}

TESSEL_TEST_MAIN(TestInstallCommand)
#include "tst_installcommand.moc"
