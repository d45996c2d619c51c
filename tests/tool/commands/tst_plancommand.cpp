#include "commandrun.h"
#include "hall.h"
#include "hallfile.h"
#include "halljson.h"
#include "hallstore.h"
#include "httpreply.h"
#include "installdriver.h"
#include "installplan.h"
#include "installrun.h"
#include "plancommand.h"
#include "planfiles.h"
#include "testcase.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// The bodies that an installation sends to a hub, as a hub would see them.
QList<QByteArray> sentBodies(const QString& hub, HallDocument& hall)
{
    InstallRun run(hub, &hall);
    run.begin();
    run.beginTransfer();
    QList<QByteArray> bodies;
    while (true) {
        const InstallStep step = run.step();
        const QString request = run.request().value_or(QString());
        if (step >= InstallStep::PresetEntry && step <= InstallStep::Recall) {
            bodies.append(request.section(QStringLiteral("\r\n\r\n"), 1).toUtf8());
        }
        if (run.evaluate(QStringLiteral(
                "HTTP/1.1 200 OK\r\nContent-Disposition: a; filename=\"x.y\"\r\n"
                "\r\n{\"request\":\"accepted\",\"status\":\"invalid\"}")) != InstallMove::Send) {
            return bodies;
        }
    }
}

/// Four hubs that export at once, each with this password.
const QString password = QStringLiteral("secret7");

HallDescription openHubs(const QString& base)
{
    HallDescription description = *HallDescription::byCounts(4, 0, base);
    for (HubDescription& hub : description.hubs) {
        hub.password = password;
        hub.exportPolls = 0;
    }
    return description;
}

void install(const QString& hub, HallDocument& hall)
{
    InstallDriver driver(hub, &hall, nullptr);
    driver.start();
    QTRY_VERIFY(driver.isAskingUser());
    driver.submitPassword(password);
    QTRY_VERIFY(driver.isLoggedIn());
    driver.sendPresets();
    QTRY_VERIFY(!driver.isRunning());
    QVERIFY(driver.outcome().isInstalled);
}

/// The bytes of all files in a folder and those below it, by their places in it.
QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator all(folder, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString file = all.next();
        files.insert(file.mid(folder.size()), fileAt(file));
    }
    return files;
}

} // namespace

/// `plan`.
class TestPlanCommand : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyHubHasItsRequestsInOrder();
    void oneHubCanBeNamed();
    void anAddressThatIsNoHubsIsWrongUsage_data();
    void anAddressThatIsNoHubsIsWrongUsage();
    void theBodiesAreThoseOfAnInstallation();
    void theBodiesAreWhatTheHubsHoldAfterAnInstallation();
    void aFolderThatCannotBeMadeIsTold();
    void aFolderThatIsNotEmptyIsRefused();
    void addressesOfAFileLeaveTheFolderNot();
    void aHallThatMakesNoSenseIsToldAndNothingIsWritten();
    void aHallThatIsNotReadyIsToldAndAFailure();
    void aHallWithoutHubsIsToldAndAFailure();
    void anUnreadableFileIsToldAndNothingElse();
    void noLineIsWiderThanATerminal();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    CommandRun plan(const QByteArray& text, const QStringList& options = {}) const;

    QTemporaryDir m_folder;
};

CommandRun TestPlanCommand::plan(const QByteArray& text, const QStringList& options) const
{
    const HallJsonReading reading = readHallJson(text);
    if (reading.hall == nullptr ||
        !writeHallFile(path("hall.tessel"), reading.hall->data()).isEmpty()) {
        QTest::qFail(qPrintable(reading.faults.join(u'\n')), __FILE__, __LINE__);
        return {};
    }
    return runCommand(PlanCommand(), QStringList(path("hall.tessel")) + options);
}

void TestPlanCommand::everyHubHasItsRequestsInOrder()
{
    const CommandRun run = plan(sampleHallText());
    QCOMPARE(run.code, ExitCode::AllIsWell);
    QCOMPARE(run.errors, QString());
    QVERIFY2(run.output.startsWith(u"Hub-1, 127.0.1.1\n"
                                   u"\n"
                                   u"Preset  Request             Stored as         Bytes\n"
                                   u"------  ------------------  ----------------  -----\n"
                                   u"     1  preset entry                             92\n"
                                   u"     1  file of the hub     (the hub's name)   1703\n"
                                   u"     1  file of 127.0.1.5   021AFF000005         42\n"
                                   u"     1  file of 127.0.1.6   021AFF000006         42\n"
                                   u"     1  file of 127.0.1.7   021AFF000007         42\n"
                                   u"     2  preset entry                             80\n"),
             qPrintable(run.output));
    QCOMPARE(run.output.count(u"recall of preset 1"), 4);
}

void TestPlanCommand::oneHubCanBeNamed()
{
    const CommandRun run =
        plan(sampleHallText(),
             {QStringLiteral("--hub"), QStringLiteral("127.0.1.3"), QStringLiteral("--json")});
    QCOMPARE(run.code, ExitCode::AllIsWell);
    const QJsonArray hubs =
        QJsonDocument::fromJson(run.output.toUtf8())[QStringLiteral("hubs")].toArray();
    QCOMPARE(hubs.size(), 1);
    QCOMPARE(hubs.at(0)[QStringLiteral("address")].toString(), QStringLiteral("127.0.1.3"));
    const QJsonArray requests = hubs.at(0)[QStringLiteral("requests")].toArray();
    QStringList kinds;
    for (const QJsonValue request : requests) {
        kinds.append(request[QStringLiteral("kind")].toString());
    }
    QCOMPARE(kinds.join(u' '),
             QStringLiteral("preset-entry hub-file preset-entry hub-file recall"));
}

void TestPlanCommand::anAddressThatIsNoHubsIsWrongUsage_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("of nobody") << QStringLiteral("10.0.0.1");
    QTest::newRow("of a microphone") << QStringLiteral("127.0.1.5");
    QTest::newRow("no address") << QStringLiteral("Hub-1");
}

void TestPlanCommand::anAddressThatIsNoHubsIsWrongUsage()
{
    QFETCH(const QString, address);
    const CommandRun run = plan(sampleHallText(), {QStringLiteral("--hub"), address});
    QCOMPARE(run.code, ExitCode::WrongUsage);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.endsWith(address + QStringLiteral(" is no hub in a room of this hall\n")),
             qPrintable(run.errors));
}

void TestPlanCommand::theBodiesAreThoseOfAnInstallation()
{
    const QString hub = QStringLiteral("127.0.1.1");
    const CommandRun run = plan(
        sampleHallText(), {QStringLiteral("--files"), path("bodies"), QStringLiteral("--json")});
    QCOMPARE(run.code, ExitCode::AllIsWell);
    const QJsonValue planned =
        QJsonDocument::fromJson(run.output.toUtf8())[QStringLiteral("hubs")][0];
    QCOMPARE(planned[QStringLiteral("address")].toString(), hub);
    QList<QByteArray> bodies;
    for (const QJsonValue request : planned[QStringLiteral("requests")].toArray()) {
        bodies.append(fileAt(path("bodies/") + request[QStringLiteral("file")].toString()));
        QCOMPARE(request[QStringLiteral("bytes")].toInteger(), bodies.last().size());
    }
    const HallReading reading = readHallFile(path("hall.tessel"));
    QCOMPARE(bodies, sentBodies(hub, *reading.hall));
    QCOMPARE(fileAt(path("bodies/127.0.1.1/preset-1/entry.json")),
             QByteArray("{\"description\": \"Big \\\"hall\\\"\", \"preset-number\": 1, "
                        "\"source-type\": 2, \"external-source\": \"\"}"));
    QVERIFY(fileAt(path("bodies/127.0.1.1/preset-1/hub.xml")).contains("sys.systemname=\"Hub-1\""));
}

void TestPlanCommand::theBodiesAreWhatTheHubsHoldAfterAnInstallation()
{
    const CommandRun run = plan(sampleHallText().replace("127.0.1.", "127.34.1."),
                                {QStringLiteral("--files"), path("plan")});
    QCOMPARE(run.code, ExitCode::AllIsWell);
    Hall hall(openHubs(QStringLiteral("127.34.1.1")));
    HallStore store(hall, path("store"));
    QString error;
    QVERIFY2(hall.start(&error) && store.start(&error), qPrintable(error));
    const HallReading reading = readHallFile(path("hall.tessel"));
    for (const SimulatedHub* hub : hall.hubs()) {
        install(hub->address(), *reading.hall);
        const QString held = QStringLiteral("/%1.xml").arg(hub->hubDescription().storageName());
        QMap<QString, QByteArray> bodies = filesBelow(path("plan/") + hub->address());
        for (const QString& file : bodies.keys()) {
            const QString name = QString(file).replace(QStringLiteral("/hub.xml"), held);
            bodies.insert(name, bodies.take(file));
        }
        QMap<QString, QByteArray> kept = filesBelow(path("store/") + hub->address());
        QVERIFY(kept.remove(QStringLiteral("/state.json")) == 1);
        QVERIFY(bodies.remove(QStringLiteral("/recall.json")) == 1); // it leaves no file behind
        QVERIFY(kept.size() > 2);
        QCOMPARE(bodies, kept);
    }
}

void TestPlanCommand::aFolderThatCannotBeMadeIsTold()
{
    putFile(path("taken"), "a file");
    const CommandRun run = plan(sampleHallText(), {QStringLiteral("--files"), path("taken")});
    QCOMPARE(run.code, ExitCode::CouldNotBeTried);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.contains(u"this folder cannot be made"), qPrintable(run.errors));
}

void TestPlanCommand::aFolderThatIsNotEmptyIsRefused()
{
    QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("used")));
    putFile(path("used/.earlier"), "a file");
    const CommandRun run = plan(sampleHallText(), {QStringLiteral("--files"), path("used")});
    QCOMPARE(run.code, ExitCode::WrongUsage);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.errors, QStringLiteral("tesselctl: %1: this folder is not empty; choose another "
                                        "one\n")
                             .arg(path("used")));
    QCOMPARE(QDir(path("used")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void TestPlanCommand::addressesOfAFileLeaveTheFolderNot()
{
    const QTemporaryDir folder;
    InstallPlan planned;
    planned.requests = {{{InstallStep::PeripheralFile, 1, QStringLiteral("../../../up")},
                         QStringLiteral("../../mac/../.."),
                         "body"}};
    QCOMPARE(writeBodies(folder.filePath(QStringLiteral("inside/bodies")),
                         QStringLiteral("../../../up"), planned),
             QString());
    const QStringList written = filesBelow(folder.path()).keys();
    QCOMPARE(written.size(), 1);
    QVERIFY2(written.first().startsWith(u"/inside/bodies/"), qPrintable(written.first()));
}

void TestPlanCommand::aHallThatMakesNoSenseIsToldAndNothingIsWritten()
{
    const CommandRun run = plan(changed(sampleHallText(), "02:1A:FF:00:00:05", ""),
                                {QStringLiteral("--files"), path("nonsense")});
    QCOMPARE(run.code, ExitCode::SomethingIsNot);
    QVERIFY2(run.errors.contains(u"its MAC address is missing"), qPrintable(run.errors));
    QVERIFY(!QFile::exists(path("nonsense")));
}

void TestPlanCommand::aHallThatIsNotReadyIsToldAndAFailure()
{
    const QByteArray text =
        changed(sampleHallText(), "\"layouts\"", "\"not-chosen\": [\"sets\"], \"layouts\"");
    const CommandRun run = plan(text, {QStringLiteral("--hub"), QStringLiteral("127.0.1.1")});
    QCOMPARE(run.code, ExitCode::SomethingIsNot);
    QCOMPARE(run.errors,
             QStringLiteral("tesselctl: %1: 127.0.1.1: Making the preset of layout 1: what "
                            "was entered for it is missing\n")
                 .arg(path("hall.tessel")));
}

void TestPlanCommand::aHallWithoutHubsIsToldAndAFailure()
{
    const CommandRun run = plan("{}");
    QCOMPARE(run.code, ExitCode::SomethingIsNot);
    QVERIFY2(run.errors.endsWith(u"there is no hub in any room\n"), qPrintable(run.errors));
}

void TestPlanCommand::anUnreadableFileIsToldAndNothingElse()
{
    const CommandRun run = runCommand(PlanCommand(), {path("none.tessel")});
    QCOMPARE(run.code, ExitCode::CouldNotBeTried);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.errors.count(u'\n'), 1);
}

void TestPlanCommand::noLineIsWiderThanATerminal()
{
    const QByteArray text = changed(sampleHallText(), "Hub-1", QByteArray(200, 'x'));
    QCOMPARE(lineThatIsTooWide(plan(text).output), QString());
}

TESSEL_TEST_MAIN(TestPlanCommand)
#include "tst_plancommand.moc"
