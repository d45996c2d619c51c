#include "faultplan.h"
#include "faultreader.h"
#include "replyplan.h"
#include "testcase.h"
#include "textcommands.h"

#include <QJsonDocument>
#include <QTest>

namespace {

QByteArray wire(const ReplyPlan& plan)
{
    QByteArray bytes;
    for (const Delivery::Piece& piece : plan.delivery.pieces) {
        bytes += piece.bytes;
    }
    return bytes;
}

HubReply okReply()
{
    return HubReply::json(200, {{QStringLiteral("a"), 1}});
}

const QByteArray okBytes = "HTTP/1.1 200 OK\r\nContent-Type: application/json;charset=utf-8\r\n"
                           "Content-Length: 7\r\nConnection: keep-alive\r\n\r\n{\"a\":1}";

} // namespace

/// Faults as data: reading them, planning them, and what they do to a reply.
class TestFaults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyExchangeAndKindIsFoundByItsName();
    void stepNumbersNameTheInstallationsRequests();
    void faultStrikesItsExchangeAsOftenAsPlanned();
    void faultWithoutAnExchangeStrikesItsWholeChannel();
    void kindsThatStrikeConnectionsAreLeftAlone();
    void replyWithoutFaults();
    void replyUnderAFault_data();
    void replyUnderAFault();
    void faultsAddUp();
    void textIsInsertedIntoAnEmptyBody();
    void piecesAreCutWhereAsked();
    void answerUnderAFault_data();
    void answerUnderAFault();
    void textsOfFaults_data();
    void textsOfFaults();
    void wrongTextsAreExplained_data();
    void wrongTextsAreExplained();
};

void TestFaults::everyExchangeAndKindIsFoundByItsName()
{
    for (int value = 0; value <= static_cast<int>(Exchange::Discovery); ++value) {
        const auto exchange = static_cast<Exchange>(value);
        QVERIFY(exchangeNamed(exchangeName(exchange)) == exchange);
    }
    for (int value = 0; value <= static_cast<int>(FaultKind::RawDatagram); ++value) {
        const auto kind = static_cast<FaultKind>(value);
        QVERIFY(faultKindNamed(faultKindName(kind)) == kind);
    }
    QVERIFY(!exchangeNamed(u"nonsense"));
    QVERIFY(!faultKindNamed(u"nonsense"));
}

void TestFaults::stepNumbersNameTheInstallationsRequests()
{
    QVERIFY(exchangeNamed(u"0") == Exchange::Status);
    QVERIFY(exchangeNamed(u"10") == Exchange::Invalidate);
    QVERIFY(!exchangeNamed(u"11"));
    QVERIFY(!exchangeNamed(u"-1"));
}

void TestFaults::faultStrikesItsExchangeAsOftenAsPlanned()
{
    FaultPlan plan;
    plan.add({.exchange = Exchange::Recall, .kind = FaultKind::Silence, .times = 2, .skip = 1});
    QVERIFY(plan.take(Exchange::Status).isEmpty());
    QList<qsizetype> struck;
    for (int round = 0; round < 5; ++round) {
        struck.append(plan.take(Exchange::Recall).size());
    }
    QCOMPARE(struck, (QList<qsizetype>{0, 1, 1, 0, 0}));
}

void TestFaults::faultWithoutAnExchangeStrikesItsWholeChannel()
{
    FaultPlan plan;
    plan.add({.kind = FaultKind::Silence});
    QCOMPARE(plan.take(Exchange::Status).size(), 1);
    QCOMPARE(plan.take(Exchange::UnknownRequest).size(), 1);
    QCOMPARE(plan.take(Exchange::DeviceName).size(), 0);
    QCOMPARE(plan.take(Exchange::Discovery).size(), 0);
    plan.clear();
    QCOMPARE(plan.take(Exchange::Status).size(), 0);
}

void TestFaults::kindsThatStrikeConnectionsAreLeftAlone()
{
    FaultPlan plan;
    plan.add({.kind = FaultKind::Greeting, .bytes = "hello", .times = 1});
    QVERIFY(plan.take(Exchange::DeviceName).isEmpty());
    QVERIFY(plan.holds(FaultKind::Greeting));
    QCOMPARE(plan.take(FaultKind::Greeting)->bytes, QByteArray("hello"));
    QVERIFY(!plan.holds(FaultKind::Greeting));
}

void TestFaults::replyWithoutFaults()
{
    const ReplyPlan plan = planReply(okReply(), {});
    QCOMPARE(wire(plan), okBytes);
    QCOMPARE(plan.delivery.pieces.size(), 1);
    QVERIFY(!plan.delivery.closeAfter);
    QVERIFY(!plan.rebootMs);
}

void TestFaults::replyUnderAFault_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("prevents");

    const auto row = [](const char* name, const Fault& fault, const char* before, const char* after,
                        bool closes, bool prevents) {
        QTest::newRow(name) << fault << QByteArray(okBytes).replace(before, after) << closes
                            << prevents;
    };
    const char* length = "Content-Length: 7\r\n";
    row("another status", {.kind = FaultKind::Status, .number = 500}, "200 OK",
        "500 Internal Server Error", false, true);
    row("201", {.kind = FaultKind::Status, .number = 201}, "200 OK", "201 Created", false, false);
    row("silence", {.kind = FaultKind::Silence}, okBytes.constData(), "", false, true);
    row("closing", {.kind = FaultKind::CloseBeforeReply}, okBytes.constData(), "", true, true);
    row("closing in the body", {.kind = FaultKind::CloseInBody}, "{\"a\":1}", "{\"a", true, false);
    row("one-byte pieces", {.kind = FaultKind::Pieces}, "", "", false, false);
    row("slow", {.kind = FaultKind::Slow, .number = 5}, "", "", false, false);
    row("no length", {.kind = FaultKind::NoLength}, length, "", false, false);
    row("a zero length", {.kind = FaultKind::Length, .bytes = "0"}, length, "Content-Length: 0\r\n",
        false, false);
    row("a negative length", {.kind = FaultKind::Length, .bytes = "-1"}, length,
        "Content-Length: -1\r\n", false, false);
    row("a huge length", {.kind = FaultKind::Length, .bytes = "99999999999"}, length,
        "Content-Length: 99999999999\r\n", false, false);
    row("a length before", {.kind = FaultKind::LengthBefore, .bytes = "3"}, length,
        "Content-Length: 3\r\nContent-Length: 7\r\n", false, false);
    row("a length after", {.kind = FaultKind::LengthAfter, .bytes = "3"}, length,
        "Content-Length: 7\r\nContent-Length: 3\r\n", false, false);
    row("close", {.kind = FaultKind::ConnectionHeader, .bytes = "close"}, "keep-alive", "close",
        true, false);
    row("close with odd blanks", {.kind = FaultKind::ConnectionHeader, .bytes = " \tclose "},
        "keep-alive", " \tclose ", true, false);
    row("Close", {.kind = FaultKind::ConnectionHeader, .bytes = "Close"}, "keep-alive", "Close",
        false, false);
    row("garbage", {.kind = FaultKind::Garbage}, "7\r\nConnection: keep-alive\r\n\r\n{\"a\":1}",
        "22\r\nConnection: keep-alive\r\n\r\n{\"is-initialized\": <<<", false, false);
    row("another body", {.kind = FaultKind::Body, .bytes = "\xC3\x84\r\n\r\n"},
        "7\r\nConnection: keep-alive\r\n\r\n{\"a\":1}",
        "6\r\nConnection: keep-alive\r\n\r\n\xC3\x84\r\n\r\n", false, false);
    row("text in the body", {.kind = FaultKind::InsertedText, .bytes = "\r\n\xC3\x84"},
        "7\r\nConnection: keep-alive\r\n\r\n{\"a\":1}",
        "11\r\nConnection: keep-alive\r\n\r\n{\r\n\xC3\x84\"a\":1}", false, false);
    row("raw bytes", {.kind = FaultKind::RawReply, .bytes = "xyz"}, okBytes.constData(), "xyz",
        false, false);
    row("a reboot", {.kind = FaultKind::Reboot, .number = 9}, okBytes.constData(), "", false, true);
}

void TestFaults::replyUnderAFault()
{
    QFETCH(const Fault, fault);
    const ReplyPlan plan = planReply(okReply(), {fault});
    QTEST(wire(plan), "bytes");
    QTEST(plan.delivery.closeAfter, "closes");
    QTEST(preventsAction({fault}), "prevents");
    QCOMPARE(plan.rebootMs.has_value(), fault.kind == FaultKind::Reboot);
}

void TestFaults::faultsAddUp()
{
    const QList<Fault> faults{{.kind = FaultKind::Pieces},
                              {.kind = FaultKind::Body, .bytes = "\xC3\x84"},
                              {.kind = FaultKind::Slow, .number = 5}};
    const ReplyPlan plan = planReply(okReply(), faults);
    QVERIFY(wire(plan).endsWith("Content-Length: 2\r\nConnection: keep-alive\r\n\r\n\xC3\x84"));
    QCOMPARE(plan.delivery.pieces.size(), wire(plan).size());
    QCOMPARE(plan.delivery.pieces.front().waitMs, 5);
    QVERIFY(plan.delivery.pieces.last().waitMs > 0);
}

void TestFaults::textIsInsertedIntoAnEmptyBody()
{
    const ReplyPlan plan = planReply(okReply(), {{.kind = FaultKind::Body, .bytes = ""},
                                                 {.kind = FaultKind::InsertedText, .bytes = "x"}});
    QVERIFY(wire(plan).endsWith("Content-Length: 1\r\nConnection: keep-alive\r\n\r\nx"));
}

void TestFaults::piecesAreCutWhereAsked()
{
    QCOMPARE(cutAt("abcdef", {2, 4}), (QList<QByteArray>{"ab", "cd", "ef"}));
    QCOMPARE(cutAt("abcdef", {0, 3, 3, 2, 6, 9}), (QList<QByteArray>{"abc", "def"}));
    QCOMPARE(cutAt("abcdef", {}), QList<QByteArray>{"abcdef"});
    QCOMPARE(cutAt("", {1}), QList<QByteArray>{""});
}

void TestFaults::answerUnderAFault_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QList<QByteArray>>("packets");
    QTest::newRow("split in the middle")
        << Fault{.kind = FaultKind::SplitAnswer} << QList<QByteArray>{"OK ", "\"a\"\n"};
    QTest::newRow("split where asked") << Fault{.kind = FaultKind::SplitAnswer, .cuts = {1, 2}}
                                       << QList<QByteArray>{"O", "K", " \"a\"\n"};
    QTest::newRow("doubled") << Fault{.kind = FaultKind::DoubledAnswer}
                             << QList<QByteArray>{"OK \"a\"\nOK \"a\"\n"};
    QTest::newRow("without quotes")
        << Fault{.kind = FaultKind::NoQuotes} << QList<QByteArray>{"OK a\n"};
}

void TestFaults::answerUnderAFault()
{
    QFETCH(const Fault, fault);
    const Delivery delivery = planAnswer({Exchange::DeviceName, "OK \"a\"\n", {}}, {fault});
    QList<QByteArray> packets;
    for (const Delivery::Piece& piece : delivery.pieces) {
        packets.append(piece.bytes);
    }
    QTEST(packets, "packets");
}

void TestFaults::textsOfFaults_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<Fault>("fault");
    QTest::newRow("a status") << QStringLiteral("127.0.1.1,recall,status*2,503")
                              << QByteArray(R"({"device": "127.0.1.1", "at": "recall",
                                  "kind": "status", "value": 503, "times": 2})")
                              << Fault{.address = QStringLiteral("127.0.1.1"),
                                       .exchange = Exchange::Recall,
                                       .kind = FaultKind::Status,
                                       .number = 503,
                                       .times = 2};
    QTest::newRow("anything anywhere")
        << QStringLiteral("*,*,silence") << QByteArray(R"({"kind": "silence"})")
        << Fault{.kind = FaultKind::Silence};
    QTest::newRow("bytes") << QStringLiteral("*,3,body,a,\\r\\n\\xff\\\\Ä")
                           << QByteArray(R"({"at": "3", "kind": "body",
                               "value": "a,\\r\\n\\xff\\\\Ä"})")
                           << Fault{.exchange = Exchange::LogIn,
                                    .kind = FaultKind::Body,
                                    .bytes = "a,\r\n\xFF\\\xC3\x84"};
    QTest::newRow("a connection's")
        << QStringLiteral("*,*,greeting*2,hello")
        << QByteArray(R"({"kind": "greeting", "value": "hello",
                                        "times": 2})")
        << Fault{.kind = FaultKind::Greeting, .bytes = "hello", .times = 2};
    QTest::newRow("refusal") << QStringLiteral("*,*,refuse") << QByteArray(R"({"kind": "refuse"})")
                             << Fault{.kind = FaultKind::RefuseHttp};
    QTest::newRow("cuts") << QStringLiteral("*,*,pieces,3;17")
                          << QByteArray(R"({"kind": "pieces", "value": [3, 17]})")
                          << Fault{.kind = FaultKind::Pieces, .cuts = {3, 17}};
}

void TestFaults::textsOfFaults()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, json);
    QFETCH(const Fault, fault);
    QString error;
    const std::optional<Fault> fromText = faultFromText(text, &error);
    const std::optional<Fault> fromJson =
        faultFromJson(QJsonDocument::fromJson(json).object(), QStringLiteral("fault 1"), &error);
    QCOMPARE(error, QString());
    for (const std::optional<Fault>& read : {fromText, fromJson}) {
        QVERIFY(read);
        QCOMPARE(read->address, fault.address);
        QCOMPARE(read->exchange, fault.exchange);
        QCOMPARE(read->kind, fault.kind);
        QCOMPARE(read->number, fault.number);
        QCOMPARE(read->bytes, fault.bytes);
        QCOMPARE(read->cuts, fault.cuts);
        QCOMPARE(read->times, fault.times);
    }
}

void TestFaults::wrongTextsAreExplained_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* text, const char* error) {
        QTest::newRow(text)
            << QString::fromLatin1(text)
            << QStringLiteral("fault \"%1\": %2").arg(QLatin1String(text), QLatin1String(error));
    };
    row("silence", "expected DEVICE,EXCHANGE,KIND");
    row("*,*,nonsense", "there is no kind of fault \"nonsense\"");
    row("*,nonsense,silence", "there is no exchange \"nonsense\"");
    row("here,*,silence", "\"here\" is no device's address");
    row("*,recall,no-quotes", "\"no-quotes\" cannot happen to \"recall\"");
    row("*,*,status", "the value does not fit \"status\"");
    row("*,*,status,x", "the value does not fit \"status\"");
    row("*,*,silence,5", "the value does not fit \"silence\"");
    row("*,*,pieces,1;x", "the value does not fit \"pieces\"");
    row("*,*,body,\\q", "the value does not fit \"body\"");
    row("*,*,body,\\x1", "the value does not fit \"body\"");
    row("*,*,body,\\", "the value does not fit \"body\"");
    row("*,*,silence*0", "\"*\" is not followed by a count");
    row("*,recall,refuse", "\"refuse\" strikes connections, so that its exchange is \"*\"");
    row("*,device-name,refuse-commands",
        "\"refuse-commands\" strikes connections, so that its exchange is \"*\"");
    row("*,device-name,greeting,hello",
        "\"greeting\" strikes connections, so that its exchange is \"*\"");
    row("*,device-id,stop-after,2",
        "\"stop-after\" strikes connections, so that its exchange is \"*\"");
    row("*,*,refuse*1", "\"refuse\" lasts, so that nothing of it can be counted or skipped");
    row("*,*,refuse-commands*2",
        "\"refuse-commands\" lasts, so that nothing of it can be counted or skipped");
}

void TestFaults::wrongTextsAreExplained()
{
    QFETCH(const QString, text);
    QString error;
    QVERIFY(!faultFromText(text, &error));
    QTEST(error, "error");
}

TESSEL_TEST_MAIN(TestFaults)
#include "tst_faults.moc"
