#include "exchangelog.h"
#include "filesizelimit.h"
#include "httpconnection.h"
#include "httprequest.h"
#include "scriptedpeer.h"
#include "testcase.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString hub = QStringLiteral("127.20.9.1");
const QString token = QStringLiteral("9f3c-Token-77aa");
const QString digest = QStringLiteral("5ebe2294ecd0e0f08eab7690d2a6ee69");
const QString black = QStringLiteral("***");

QString tokenRequest()
{
    return HttpRequest::getToken(hub);
}

QString lineOf(const QString& request)
{
    return request.section(QStringLiteral("\r\n"), 0, 0);
}

QString reply(const char* body, const char* extra = "")
{
    return QString::fromUtf8(httpReply("200", body, extra));
}

QString tokenReply()
{
    return reply(R"({"access-token": "9f3c-Token-77aa"})");
}

QString putRequest(const QString& body)
{
    const QString line =
        HttpRequest::requestLine(QStringLiteral("PUT"), hub, QStringLiteral("config/presets/"));
    return HttpRequest::withBody(line, token, BodyType::Json, body);
}

} // namespace

/// The file in which requests and replies are written down.
class TestExchangeLog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void eachRequestAndEachReplyIsALine();
    void whatIsWrittenDownGoesOutUnchanged();
    void withoutALogNothingIsWritten();
    void logThatCouldNotBeWrittenSaysSo();
    void noMessageTellsASecret_data();
    void noMessageTellsASecret();
    void aSecretThatWasMetOnceIsBlackEverywhere();
    void aSecretFromDeepInsideALogInIsBlackEverywhere_data();
    void aSecretFromDeepInsideALogInIsBlackEverywhere();
    void whatAHubExportsIsLeftOut();
    void whatIsNoSecretStays();
    void aHubWithoutATokenBlacksOutNothing();
    void aNewFileIsForItsOwnerAndAnOldOneGoesOn();
    void aFileThatCannotBeWrittenIsTold();

private:
    QByteArray bytes() const;
    QList<QJsonObject> lines() const;

    QTemporaryDir m_folder;
    QString m_path;
};

void TestExchangeLog::init()
{
    TestCase::init();
    m_path = m_folder.filePath(QStringLiteral("requests.jsonl"));
    QFile::remove(m_path);
}

void TestExchangeLog::cleanup()
{
    HttpConnection::writeTo(nullptr);
}

QByteArray TestExchangeLog::bytes() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<QJsonObject> TestExchangeLog::lines() const
{
    QList<QJsonObject> objects;
    for (const QByteArray& line : bytes().split('\n')) {
        if (!line.isEmpty()) {
            objects.append(QJsonDocument::fromJson(line).object());
        }
    }
    return objects;
}

void TestExchangeLog::eachRequestAndEachReplyIsALine()
{
    ScriptedPeer peer(hub, [](const QByteArray&, qsizetype) { return okAnswer(R"({"a": 1})"); });
    QVERIFY(peer.isListening());
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    HttpConnection::writeTo(&log);
    HttpConnection connection(hub, nullptr);
    const QSignalSpy replied(&connection, SIGNAL(replied(QString)));
    connection.ask(putRequest(QStringLiteral(R"({"description": "Süd"})")));
    QTRY_COMPARE(replied.size(), 1);
    QCOMPARE(lines().size(), 2);
    const QJsonObject request = lines().at(0);
    const QString line = QStringLiteral("PUT http://127.20.9.1/api/v0/config/presets/ HTTP/1.1");
    QCOMPARE(request.value(u"kind").toString(), QStringLiteral("request"));
    QCOMPARE(request.value(u"hub").toString(), hub);
    QCOMPARE(request.value(u"of").toString(), line);
    QCOMPARE(request.value(u"body").toString(), QStringLiteral(R"({"description": "Süd"})"));
    QCOMPARE(request.value(u"headers").toArray().at(1).toString(),
             QStringLiteral("authorization: ***"));
    QVERIFY(QDateTime::fromString(request.value(u"time").toString(), Qt::ISODateWithMs).isValid());
    const QJsonObject answer = lines().at(1);
    QCOMPARE(answer.value(u"kind").toString(), QStringLiteral("reply"));
    QCOMPARE(answer.value(u"of").toString(), line);
    QCOMPARE(answer.value(u"line").toString(), QStringLiteral("HTTP/1.1 200 Text"));
    QCOMPARE(answer.value(u"body").toString(), QStringLiteral(R"({"a": 1})"));
}

void TestExchangeLog::whatIsWrittenDownGoesOutUnchanged()
{
    ScriptedPeer peer(hub, [](const QByteArray&, qsizetype) { return okAnswer("{}"); });
    QVERIFY(peer.isListening());
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    HttpConnection::writeTo(&log);
    HttpConnection connection(hub, nullptr);
    const QSignalSpy replied(&connection, SIGNAL(replied(QString)));
    const QStringList requests{tokenRequest(), HttpRequest::postAuthenticate(hub, token, digest),
                               putRequest(QStringLiteral(R"({"token": "Süd"})"))};
    for (int number = 0; number < requests.size(); ++number) {
        connection.ask(requests.at(number));
        QTRY_COMPARE(replied.size(), number + 1);
        QCOMPARE(peer.requests().last(), requests.at(number).toUtf8());
    }
}

void TestExchangeLog::withoutALogNothingIsWritten()
{
    ScriptedPeer peer(hub, [](const QByteArray&, qsizetype) { return okAnswer("{}"); });
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    HttpConnection::writeTo(&log);
    HttpConnection::writeTo(nullptr);
    HttpConnection connection(hub, nullptr);
    const QSignalSpy replied(&connection, SIGNAL(replied(QString)));
    connection.ask(tokenRequest());
    QTRY_COMPARE(replied.size(), 1);
    QCOMPARE(bytes(), QByteArray());
}

void TestExchangeLog::logThatCouldNotBeWrittenSaysSo()
{
    if (!FileSizeLimit::isPossible()) {
        QSKIP("This system does not limit the size of files");
    }
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    log.noteRequest(hub, tokenRequest());
    QVERIFY(log.isWhole());
    {
        const FileSizeLimit fullDisk(QFileInfo(m_path).size() + 10);
        log.noteRequest(hub, tokenRequest());
    }
    QVERIFY(!log.isWhole());
    QVERIFY(!log.error().isEmpty());
}

void TestExchangeLog::noMessageTellsASecret_data()
{
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("reply");
    QTest::newRow("the token that a hub hands out") << tokenRequest() << tokenReply();
    QTest::newRow("a log-in") << HttpRequest::postAuthenticate(hub, token, digest)
                              << reply(R"({"access-token": "9f3c-Token-77aa"})");
    const QString validateLine =
        HttpRequest::requestLine(QStringLiteral("POST"), hub, QStringLiteral("auth/validate"));
    QTest::newRow("a first password")
        << HttpRequest::withBody(validateLine, token, BodyType::Json,
                                 QStringLiteral(R"({"admin": "%1"})").arg(digest))
        << reply(R"({"request": "accepted"})");
    QTest::newRow("a log-in that says it again in its refusal")
        << HttpRequest::postAuthenticate(hub, token, digest)
        << reply(R"({"error": "5ebe2294ecd0e0f08eab7690d2a6ee69 is wrong"})");
    QTest::newRow("a refusal in a text of its own")
        << HttpRequest::postAuthenticate(hub, token, digest)
        << reply("admin:5EBE2294ECD0E0F08EAB7690D2A6EE69");
    QTest::newRow("the token given back")
        << HttpRequest::postInvalidate(hub, token) << reply(R"({"status": "invalid"})");
    QTest::newRow("cookies") << tokenRequest()
                             << reply("{}", "Set-Cookie: id=9f3c-Token-77aa; Path=/\r\n");
    QTest::newRow("a challenge") << tokenRequest()
                                 << reply("{}",
                                          "WWW-Authenticate: Digest nonce=\"9f3c-Token-77aa\","
                                          " opaque=\"5ebe2294ecd0e0f08eab7690d2a6ee69\"\r\n");
    QTest::newRow("deep inside another reply")
        << HttpRequest::getIdentification(hub, token)
        << reply(
               R"({"users": [{"name": "a", "Password-Hash": "5ebe2294ecd0e0f08eab7690d2a6ee69"}]})");
    QTest::newRow("a list as another reply")
        << HttpRequest::getIdentification(hub, token) << reply(R"([{"token": "9f3c-Token-77aa"}])");
    QTest::newRow("lists around the log-in")
        << tokenRequest() << reply(R"({"tokens": ["9f3c-Token-77aa"], "x": ["9f3c-Token-77aa"]})");
    QTest::newRow("a header line of the hub's own")
        << tokenRequest() << reply("{}", "X-Access-Token: 9f3c-Token-77aa\r\n");
}

void TestExchangeLog::noMessageTellsASecret()
{
    QFETCH(const QString, request);
    QFETCH(const QString, reply);
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    log.noteRequest(hub, request);
    log.noteReply(hub, lineOf(request), reply);
    QCOMPARE(lines().size(), 2);
    QVERIFY2(!bytes().toLower().contains(token.toLower().toUtf8()), bytes().constData());
    QVERIFY2(!bytes().toLower().contains(digest.toUtf8()), bytes().constData());
}

void TestExchangeLog::aSecretThatWasMetOnceIsBlackEverywhere()
{
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    log.noteRequest(hub, tokenRequest());
    log.noteReply(hub, lineOf(tokenRequest()), tokenReply());
    const QString later = QStringLiteral("GET http://127.20.9.1/api/v0/x/%1 HTTP/1.1\r\n"
                                         "X-Note: %1\r\n\r\n")
                              .arg(token);
    log.noteRequest(hub, later);
    log.noteReply(hub, lineOf(later),
                  QStringLiteral("HTTP/1.1 500 %1\r\n\r\nno %1 here").arg(token.toUpper()));
    QVERIFY2(!bytes().toLower().contains(token.toLower().toUtf8()), bytes().constData());
    QCOMPARE(lines().at(2).value(u"of").toString(),
             QStringLiteral("GET http://127.20.9.1/api/v0/x/*** HTTP/1.1"));
    QCOMPARE(lines().at(3).value(u"line").toString(), QStringLiteral("HTTP/1.1 500 ***"));
    QCOMPARE(lines().at(3).value(u"body").toString(), QStringLiteral("no *** here"));
}

void TestExchangeLog::aSecretFromDeepInsideALogInIsBlackEverywhere_data()
{
    QTest::addColumn<QString>("body");
    QTest::newRow("in an object") << R"({"session": {"id": "9f3c-Token-77aa"}})";
    QTest::newRow("named in an object") << R"({"data": {"access-token": "9f3c-Token-77aa"}})";
    QTest::newRow("in a list") << R"({"tokens": [["9f3c-Token-77aa"]]})";
    QTest::newRow("in an object in a list") << R"([{"x": [{"token": "9f3c-Token-77aa"}]}])";
}

void TestExchangeLog::aSecretFromDeepInsideALogInIsBlackEverywhere()
{
    QFETCH(const QString, body);
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    log.noteReply(hub, lineOf(tokenRequest()), reply(qPrintable(body)));
    const QString later = HttpRequest::getIdentification(hub, QString());
    log.noteReply(hub, lineOf(later), reply("no 9f3c-Token-77aa here"));
    QCOMPARE(lines().at(1).value(u"body").toString(), QStringLiteral("no *** here"));
    QVERIFY2(!bytes().contains(token.toUtf8()), bytes().constData());
}

void TestExchangeLog::whatAHubExportsIsLeftOut()
{
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    const QString line =
        QStringLiteral("GET http://127.20.9.1/api/v0/config/export/self/ HTTP/1.1");
    log.noteReply(hub, line, reply("<users hash='5ebe'/>", "Content-Disposition: hub01.xml\r\n"));
    QCOMPARE(lines().first().value(u"body").toString(), black);
    QVERIFY(bytes().contains("hub01.xml"));
}

void TestExchangeLog::whatIsNoSecretStays()
{
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    const QString status = HttpRequest::getStatus(hub);
    log.noteReply(hub, lineOf(status), reply(R"({"is-initialized": 1})"));
    QCOMPARE(lines().at(0).value(u"body").toString(), QStringLiteral(R"({"is-initialized":1})"));
    log.noteReply(hub, lineOf(HttpRequest::postAuthenticate(hub, token, digest)),
                  QString::fromUtf8(httpReply("401", R"({"error":"wrong password"})")));
    QCOMPARE(lines().at(1).value(u"line").toString(), QStringLiteral("HTTP/1.1 401 Text"));
    QCOMPARE(lines().at(1).value(u"body").toString(),
             QStringLiteral(R"({"error":"wrong password"})"));
    log.noteRequest(hub, putRequest(QStringLiteral("<provisioning>\n</provisioning>")));
    QCOMPARE(lines().at(2).value(u"body").toString(),
             QStringLiteral("<provisioning>\n</provisioning>"));
}

void TestExchangeLog::aHubWithoutATokenBlacksOutNothing()
{
    ExchangeLog log(m_path);
    QVERIFY(log.open());
    log.noteReply(hub, lineOf(tokenRequest()), reply(R"({"access-token": ""})"));
    log.noteRequest(hub, HttpRequest::getIdentification(hub, QString()));
    log.noteRequest(hub, putRequest(QStringLiteral(R"({"description": "bearer"})")));
    QCOMPARE(lines().last().value(u"body").toString(),
             QStringLiteral(R"({"description": "bearer"})"));
}

void TestExchangeLog::aNewFileIsForItsOwnerAndAnOldOneGoesOn()
{
    for (const int expected : {1, 2}) {
        ExchangeLog log(m_path);
        QVERIFY(log.open());
        log.noteRequest(hub, tokenRequest());
        QCOMPARE(lines().size(), expected);
    }
#ifdef Q_OS_WIN
    QSKIP("this system has no permissions that are told by a file alone");
#endif
    const QFileDevice::Permissions others = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                            QFileDevice::ReadOther | QFileDevice::WriteOther;
    QCOMPARE(QFileInfo(m_path).permissions() & others, QFileDevice::Permissions());
}

void TestExchangeLog::aFileThatCannotBeWrittenIsTold()
{
    ExchangeLog log(m_folder.filePath(QStringLiteral("missing/requests.jsonl")));
    QVERIFY(!log.open());
    QVERIFY(!log.error().isEmpty());
}

TESSEL_TEST_MAIN(TestExchangeLog)
#include "tst_exchangelog.moc"
