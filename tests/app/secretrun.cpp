#include "secretrun.h"

#include "dialoganswerer.h"
#include "documentfixtures.h"
#include "exchangelog.h"
#include "hall.h"
#include "hallreport.h"
#include "hallstore.h"
#include "httpconnection.h"
#include "loginanswers.h"
#include "mainwindow.h"
#include "recordingrelay.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "wizardhands.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>
#include <vector>

const char* const wrongPassword = "wr0ngSecretOne";
const char* const rightPassword = "r1ghtSecretTwo";
const char* const firstPassword = "f1rstSecretSix";

namespace {

constexpr int hubCount = 3;
constexpr int installPage = 7;
constexpr int anyInterface = 1;
constexpr int longestWaitMs = 20'000;

QString hubAddress(int hub)
{
    return QStringLiteral("127.83.2.%1").arg(hub);
}

QString relayAddress(int hub)
{
    return QStringLiteral("127.83.1.%1").arg(hub);
}

HallDescription describe()
{
    HallDescription description = HallDescription::byCounts(hubCount, 0, hubAddress(1)).value();
    for (HubDescription& hub : description.hubs) {
        hub.exportPolls = 0; // nobody waits for the second between two polls
    }
    description.hubs.first().password = QString::fromLatin1(rightPassword);
    description.hubs.last().password = QString::fromLatin1(rightPassword);
    return description;
}

/// Every hub in a room of its own, and one layout.
void fill(TesselDoc& doc)
{
    setNicIndex(doc, anyInterface); // the window must not ask for one
    QList<TestDevice> hubs;
    for (int hub = 1; hub <= hubCount; ++hub) {
        hubs.append({.label = QStringLiteral("Hub-%1").arg(hub),
                     .model = QStringLiteral("PX-HB"),
                     .address = relayAddress(hub)});
    }
    enterHubs(doc, hubs);
}

void install(MainWindow& window)
{
    LoginAnswers answers(QString::fromLatin1(firstPassword));
    answers.type(relayAddress(1),
                 {QString::fromLatin1(wrongPassword), QString::fromLatin1(rightPassword)});
    answers.cancel(relayAddress(3));
    const WizardHands hands(&window);
    QVERIFY(hands.press("executeButton"));
    QTRY_COMPARE_WITH_TIMEOUT(hands.statuses(), QStringLiteral("Done Done Error"), longestWaitMs);
}

void installAndSave(TesselDoc& doc)
{
    MainWindow window(nullptr, &doc);
    window.show();
    for (int page = 0; page < installPage; ++page) {
        window.next();
    }
    install(window);
    const DialogAnswerer question("Save Information?", pressing("Yes"));
    QVERIFY(window.close());
}

/// The program's own file is gone once it has been resumed; a copy stays to be searched.
void keepResumeFile()
{
    const QString path =
        QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel/resume.dat");
    QVERIFY(QFile::copy(path, QDir::homePath() + QStringLiteral("/resume-copy.dat")));
}

QByteArray md5(const char* password)
{
    return QCryptographicHash::hash(password, QCryptographicHash::Md5).toHex();
}

/// How many of the requests have it in the body; -1 when any has it in its head, or when a request
/// has it that is none of the two which may.
int bodiesWith(const RecordingRelay& relay, const QByteArray& digest)
{
    int bodies = 0;
    for (const QByteArray& request : relay.requests()) {
        if (!request.contains(digest)) {
            continue;
        }
        const QByteArray line = request.first(request.indexOf("\r\n"));
        const bool mayHaveIt =
            line.contains("/api/v0/auth/validate ") || line.contains("/api/v0/auth/authenticate ");
        if (!mayHaveIt || request.indexOf(digest) < request.indexOf("\r\n\r\n")) {
            return -1;
        }
        ++bodies;
    }
    return bodies;
}

void printHall(const Hall& hall)
{
    qInfo().noquote() << hallSummary(hall);
    for (const SimulatedHub* hub : hall.hubs()) {
        for (const JournalEntry& entry : hub->journal()) {
            qInfo().noquote() << entry.name << entry.text << entry.differences.join(u'|');
        }
    }
}

QString logPath()
{
    return QDir::homePath() + QStringLiteral("/requests.jsonl");
}

/// The tokens that the wizard has worked under.
QList<QByteArray> tokensOf(const RecordingRelay& relay)
{
    QList<QByteArray> tokens;
    for (const QByteArray& request : relay.requests()) {
        const qsizetype start = request.indexOf("bearer ");
        if (start >= 0) {
            const QByteArray token = request.mid(start + 7).split('\r').first();
            tokens.append(token);
        }
    }
    return tokens;
}

/// The log has a line for every request that went out, and no token of any.
void checkLog(const std::vector<std::unique_ptr<RecordingRelay>>& relays)
{
    QFile file(logPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray log = file.readAll();
    qsizetype requests = 0;
    for (const auto& relay : relays) {
        requests += relay->requests().size();
        for (const QByteArray& token : tokensOf(*relay)) {
            QVERIFY(token.size() > 5);
            QVERIFY2(!log.toLower().contains(token.toLower()), token.constData());
        }
    }
    QCOMPARE(log.count("\"kind\":\"request\""), requests);
    QVERIFY(!tokensOf(*relays.at(0)).isEmpty());
}

} // namespace

void SecretRun::installsSavesAndResumes()
{
    Hall hall(describe());
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    HallStore store(hall, QDir::homePath() + QStringLiteral("/hall"));
    QVERIFY2(store.start(&error), qPrintable(error));
    std::vector<std::unique_ptr<RecordingRelay>> relays;
    for (int hub = 1; hub <= hubCount; ++hub) {
        relays.push_back(std::make_unique<RecordingRelay>(relayAddress(hub), hubAddress(hub)));
        QVERIFY(relays.back()->isListening());
    }

    ExchangeLog log(logPath());
    QVERIFY(log.open());
    HttpConnection::writeTo(&log);
    TesselDoc doc(nullptr);
    fill(doc);
    installAndSave(doc);
    HttpConnection::writeTo(nullptr);
    keepResumeFile();
    const MainWindow resumed(nullptr, &doc);
    QCOMPARE(pageIndex(doc), installPage);
    printHall(hall);

    QCOMPARE(bodiesWith(*relays.at(0), md5(wrongPassword)), 1);
    QCOMPARE(bodiesWith(*relays.at(0), md5(rightPassword)), 1);
    QCOMPARE(bodiesWith(*relays.at(1), md5(firstPassword)), 2);
    QVERIFY(!relays.at(2)->requests().isEmpty());
    for (const auto& relay : relays) {
        for (const char* password : {wrongPassword, rightPassword, firstPassword}) {
            QVERIFY(!relay->requests().join().contains(password));
        }
    }
    QCOMPARE(bodiesWith(*relays.at(2), md5(rightPassword)), 0);
    checkLog(relays);
}
