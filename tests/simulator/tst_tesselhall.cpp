#include "ctrlc.h"
#include "hall.h"
#include "hallstore.h"
#include "hubtexts.h"
#include "rawpeer.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString address = QStringLiteral("127.10.5.1");
const QByteArray host = "127.10.5.1";

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject object(const QString& path)
{
    return QJsonDocument::fromJson(contents(path)).object();
}

/// Logs in and leaves one preset with two files and a recall on the hub.
void install(RawPeer& peer)
{
    const auto ask = [&peer](const QByteArray& request) {
        peer.send(request);
        return peer.takeReply();
    };
    const QByteArray guest = HubTexts::tokenIn(ask(HubTexts::token(host)));
    ask(HubTexts::setPassword(host, guest));
    const QByteArray token = HubTexts::tokenIn(ask(HubTexts::logIn(host, guest)));
    ask(HubTexts::presetEntry(host, token, 1, "\xC3\x84"));
    ask(HubTexts::file(host, token, 1, "hub01", HubTexts::hubXml()));
    ask(HubTexts::file(host, token, 1, "021A00100001", HubTexts::deviceXml()));
    ask(HubTexts::recall(host, token, 1));
}

/// The program as a person starts it.
class Program : public QProcess
{
public:
    explicit Program(const QStringList& arguments)
    {
        setProcessChannelMode(MergedChannels);
        setProgram(QStringLiteral(TESSEL_HALL_PROGRAM));
        setArguments(arguments);
        startWithConsole(*this);
    }

    bool says(const QByteArray& text)
    {
        return QTest::qWaitFor(
            [&] {
                m_said += readAll();
                return m_said.contains(text);
            },
            10000);
    }

    bool ends()
    {
        return QTest::qWaitFor([this] { return state() == NotRunning; }, 10000);
    }
    QByteArray said() { return m_said += readAll(); }

private:
    QByteArray m_said;
};

} // namespace

/// What the hall writes to disk, and the program as a whole.
class TestTesselHall : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void storeHoldsWhatTheHubHolds();
    void storeFollowsAndForgetsEarlierRuns();
    void unwritableStoreIsToldAtTheStart();
    void programServesAndEndsCleanly();
    void differencesMakeTheProgramFail();
    void takenPortMakesTheProgramFail();
    void wrongOptionsMakeTheProgramFail();
};

void TestTesselHall::storeHoldsWhatTheHubHolds()
{
    const QTemporaryDir folder;
    Hall hall(*HallDescription::byCounts(1, 1, address));
    HallStore store(hall, folder.path());
    QString error;
    QVERIFY2(hall.start(&error) && store.start(&error), qPrintable(error));
    RawPeer peer;
    QVERIFY(peer.connectTo(address, SimulatedHub::httpPort));
    install(peer);

    const QString hub = folder.filePath(address);
    QCOMPARE(contents(hub + QStringLiteral("/preset-1/hub01.xml")), HubTexts::hubXml());
    QCOMPARE(contents(hub + QStringLiteral("/preset-1/021A00100001.xml")), HubTexts::deviceXml());
    const QString entryFile = hub + QStringLiteral("/preset-1/entry.json");
    const QByteArray sent = HubTexts::presetEntry(host, {}, 1, "Ä");
    QCOMPARE(contents(entryFile), sent.mid(sent.indexOf("\r\n\r\n") + 4));
    const QJsonObject entry = object(entryFile);
    QCOMPARE(entry.value(QLatin1String("description")).toString(), QString::fromUtf8("Ä"));
    QCOMPARE(entry.value(QLatin1String("source-type")).toInt(), 2);
    const QByteArray stateText = contents(hub + QStringLiteral("/state.json"));
    const QJsonObject state = QJsonDocument::fromJson(stateText).object();
    QCOMPARE(state.value(QLatin1String("recalled-preset")).toInt(), 1);
    QCOMPARE(state.value(QLatin1String("initialised")).toBool(), true);
    QCOMPARE(state.value(QLatin1String("log-ins")).toInt(), 1);
    QVERIFY(!stateText.contains(HubTexts::secretHash));
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("127.10.5.2/state.json"))));
}

void TestTesselHall::storeFollowsAndForgetsEarlierRuns()
{
    const QTemporaryDir folder;
    const QString preset = folder.filePath(address) + QStringLiteral("/preset-1");
    QVERIFY(QDir().mkpath(preset));
    QFile stray(preset + QStringLiteral("/old.xml"));
    QVERIFY(stray.open(QIODevice::WriteOnly));
    stray.close();

    Hall hall(*HallDescription::byCounts(1, 0, address));
    HallStore store(hall, folder.path());
    QString error;
    QVERIFY2(hall.start(&error) && store.start(&error), qPrintable(error));
    QVERIFY(!QFile::exists(preset));
    RawPeer peer;
    QVERIFY(peer.connectTo(address, SimulatedHub::httpPort));
    install(peer);
    QVERIFY(QFile::exists(preset + QStringLiteral("/hub01.xml")));
    peer.send(HubTexts::token(host));
    const QByteArray guest = HubTexts::tokenIn(peer.takeReply());
    peer.send(HubTexts::logIn(host, guest));
    const QByteArray token = HubTexts::tokenIn(peer.takeReply());
    peer.send(HubTexts::presetEntry(host, token, 1, "anew"));
    peer.takeReply();
    QVERIFY(!QFile::exists(preset + QStringLiteral("/hub01.xml")));
    QVERIFY(QFile::exists(preset + QStringLiteral("/entry.json")));
}

void TestTesselHall::unwritableStoreIsToldAtTheStart()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("file"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    Hall hall(*HallDescription::byCounts(1, 0, address));
    HallStore store(hall, path);
    QString error;
    QVERIFY(!store.start(&error));
    QCOMPARE(error, QStringLiteral("cannot make the folder %1/%2").arg(path, address));

    const QString state = folder.filePath(address) + QStringLiteral("/state.json");
    QVERIFY(QDir().mkpath(state));
    HallStore blocked(hall, folder.path());
    QVERIFY(!blocked.start(&error));
    QVERIFY2(error.startsWith(QStringLiteral("cannot write ") + state), qPrintable(error));
}

void TestTesselHall::programServesAndEndsCleanly()
{
    const QTemporaryDir folder;
    Program program({QStringLiteral("--hubs"), QStringLiteral("1"), QStringLiteral("--peripherals"),
                     QStringLiteral("1"), QStringLiteral("--base"), address,
                     QStringLiteral("--store"), folder.path()});
    QVERIFY2(program.says("Ctrl+C closes the hall."), program.said().constData());
    QVERIFY(program.says("tessel -N:1 \"-D:PX-HB/Hub-1/2.1.0/127.10.5.1/02:1A:00:00:00:01\" "));
    RawPeer peer;
    QVERIFY(peer.connectTo(address, SimulatedHub::httpPort));
    install(peer);
    QVERIFY(program.says("preset 1 recalled"));
    QVERIFY(QFile::exists(folder.filePath(address + QStringLiteral("/preset-1/hub01.xml"))));
    pressCtrlC(program);
    QVERIFY(program.ends());
    QVERIFY(program.says("127.10.5.1 Hub-1: 1 presets, 2 files, preset 1 recalled\n"
                         "Every message was as prescribed.\n"));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(!program.said().contains(HubTexts::secretHash));
}

void TestTesselHall::differencesMakeTheProgramFail()
{
    Program program({QStringLiteral("--hubs"), QStringLiteral("1"), QStringLiteral("--peripherals"),
                     QStringLiteral("0"), QStringLiteral("--base"), address});
    QVERIFY(program.says("Ctrl+C"));
    RawPeer peer;
    QVERIFY(peer.connectTo(address, SimulatedHub::httpPort));
    peer.send(HubTexts::status("127.10.5.99"));
    QVERIFY(!peer.takeReply().isEmpty());
    QVERIFY(program.says("NOT AS PRESCRIBED: request 1 (status): header line 1: expected"));
    pressCtrlC(program);
    QVERIFY(program.ends());
    QCOMPARE(program.exitCode(), 3);
}

void TestTesselHall::takenPortMakesTheProgramFail()
{
    Hall hall(*HallDescription::byCounts(1, 0, address));
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    Program program({QStringLiteral("--base"), address});
    QVERIFY(program.ends());
    QCOMPARE(program.exitCode(), 2);
    QVERIFY(program.said().startsWith("tessel-hall: cannot listen on 127.10.5.1 port "));
}

void TestTesselHall::wrongOptionsMakeTheProgramFail()
{
    Program program({QStringLiteral("--hubs"), QStringLiteral("many")});
    QVERIFY(program.ends());
    QCOMPARE(program.exitCode(), 1);
    QCOMPARE(program.said(), QByteArray("tessel-hall: --hubs takes a number from 0 to 2000\n"));
}

TESSEL_TEST_MAIN(TestTesselHall)
#include "tst_tesselhall.moc"
