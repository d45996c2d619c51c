#include "hubrequestparser.h"
#include "hubtexts.h"
#include "testcase.h"

#include <QTest>

using Verdict = RequestReading::Verdict;

/// Reading requests from a stream of bytes, without sockets.
class TestHubRequestParser : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void requestIsCompleteAtItsLastByteOnly();
    void joinedRequestsAreReadOneByOne();
    void bodyIsCountedInBytes();
    void malformedBytesAreTold_data();
    void malformedBytesAreTold();
    void targetTellsWhatIsAskedFor_data();
    void targetTellsWhatIsAskedFor();
    void headerNamesAreFoundInAnyCase();
};

void TestHubRequestParser::requestIsCompleteAtItsLastByteOnly()
{
    const QByteArray request = HubTexts::presetEntry("127.0.0.1", "t", 1, "\xC3\x84");
    for (qsizetype size = 0; size < request.size(); ++size) {
        QCOMPARE(readRequest(request.first(size)).verdict, Verdict::Incomplete);
    }
    const RequestReading reading = readRequest(request);
    QCOMPARE(reading.verdict, Verdict::Complete);
    QCOMPARE(reading.consumed, request.size());
    QCOMPARE(reading.request.method(), QByteArray("PUT"));
    QCOMPARE(reading.request.lines.size(), 6);
}

void TestHubRequestParser::joinedRequestsAreReadOneByOne()
{
    const QByteArray first = HubTexts::recall("127.0.0.1", "t", 1);
    const QByteArray second = HubTexts::status("127.0.0.1");
    const RequestReading reading = readRequest(first + second);
    QCOMPARE(reading.consumed, first.size());
    QCOMPARE(reading.request.body, QByteArray("{\"preset-number\": 1}"));
    QCOMPARE(readRequest(second).consumed, second.size());
}

void TestHubRequestParser::bodyIsCountedInBytes()
{
    const RequestReading reading =
        readRequest("PUT /x HTTP/1.1\r\nContent-Length: 2\r\n\r\n\xC3\x84 more");
    QCOMPARE(reading.request.body, QByteArray("\xC3\x84"));
}

void TestHubRequestParser::malformedBytesAreTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem");
    const QString noLine = QStringLiteral("the first line is no HTTP request line");
    const QString noLength = QStringLiteral("the Content-Length line holds no usable length");
    QTest::newRow("garbage") << QByteArray("garbage\r\n\r\n") << noLine;
    QTest::newRow("an empty first line") << QByteArray("\r\n\r\n") << noLine;
    QTest::newRow("no protocol") << QByteArray("GET /x\r\n\r\n") << noLine;
    QTest::newRow("line feeds only")
        << QByteArray("GET /x HTTP/1.1\n\n") << QStringLiteral("lines end in LF instead of CR LF");
    QTest::newRow("a negative length")
        << QByteArray("GET /x HTTP/1.1\r\nContent-Length: -1\r\n\r\n") << noLength;
    QTest::newRow("a length that is no number")
        << QByteArray("GET /x HTTP/1.1\r\nContent-Length: x\r\n\r\n") << noLength;
    QTest::newRow("a length beyond all files")
        << QByteArray("GET /x HTTP/1.1\r\nContent-Length: 99999999999999\r\n\r\n") << noLength;
    QTest::newRow("a header without an end")
        << QByteArray(70000, 'x') << QStringLiteral("header longer than 65536 bytes");
}

void TestHubRequestParser::malformedBytesAreTold()
{
    QFETCH(const QByteArray, bytes);
    const RequestReading reading = readRequest(bytes);
    QCOMPARE(reading.verdict, Verdict::Malformed);
    QTEST(reading.problem, "problem");
}

void TestHubRequestParser::targetTellsWhatIsAskedFor_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<Exchange>("exchange");
    const auto row = [](const char* line, Exchange exchange) {
        QTest::newRow(line) << QByteArray(line) << exchange;
    };
    row("GET http://10.0.0.1/api/v0/auth/status HTTP/1.1", Exchange::Status);
    row("GET /api/v0/auth/status HTTP/1.1", Exchange::Status);
    row("POST http://h/api/v0/auth/status HTTP/1.1", Exchange::UnknownRequest);
    row("GET http://h/api/v0/auth/token HTTP/1.1", Exchange::Token);
    row("POST http://h/api/v0/auth/validate HTTP/1.1", Exchange::SetPassword);
    row("POST http://h/api/v0/auth/authenticate HTTP/1.1", Exchange::LogIn);
    row("POST http://h/api/v0/config/export/self/ HTTP/1.1", Exchange::StartExport);
    row("GET http://h/api/v0/config/export/self/ HTTP/1.1", Exchange::ReadExport);
    row("GET http://h/api/v0/config/export/self HTTP/1.1", Exchange::ReadExport);
    row("PUT http://h/api/v0/config/presets/ HTTP/1.1", Exchange::PresetEntry);
    row("PUT http://h/api/v0/config/presets/3/storage/hub01/xml HTTP/1.1", Exchange::HubFile);
    row("PUT http://h/api/v0/config/presets/3/storage/hub02/xml HTTP/1.1", Exchange::DeviceFile);
    row("PUT http://h/api/v0/config/presets/x/storage/hub01/xml HTTP/1.1",
        Exchange::UnknownRequest);
    row("PUT http://h/api/v0/config/presets/1/storage//xml HTTP/1.1", Exchange::UnknownRequest);
    row("POST http://h/api/v0/config/presets/recall HTTP/1.1", Exchange::Recall);
    row("POST http://h/api/v0/auth/token/invalidate HTTP/1.1", Exchange::Invalidate);
    row("GET http://h/api/v0/identification/self HTTP/1.1", Exchange::Identification);
    row("GET http://h/api/v1/auth/status HTTP/1.1", Exchange::UnknownRequest);
}

void TestHubRequestParser::targetTellsWhatIsAskedFor()
{
    QFETCH(const QByteArray, line);
    HubRequest request = readRequest(line + "\r\n\r\n").request;
    routeRequest(request, QStringLiteral("hub01"));
    QTEST(request.exchange, "exchange");
}

void TestHubRequestParser::headerNamesAreFoundInAnyCase()
{
    const HubRequest request =
        readRequest("GET /x HTTP/1.1\r\nAUTHORIZATION:  Bearer abc \r\n\r\n").request;
    QCOMPARE(request.bearer(), QByteArray("abc"));
    QVERIFY(!request.header("accept").has_value());
}

TESSEL_TEST_MAIN(TestHubRequestParser)
#include "tst_hubrequestparser.moc"
