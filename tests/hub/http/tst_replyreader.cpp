#include "replyreader.h"
#include "testcase.h"

#include <QRandomGenerator>
#include <QStringList>
#include <QTest>

class TestReplyReader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aReplyThatBringsWhatItAnnouncesIsTheSameWhereverItIsCut_data();
    void aReplyThatBringsWhatItAnnouncesIsTheSameWhereverItIsCut();
    void aReplyThatBringsMoreThanItAnnouncesIsHandedOutWhole_data();
    void aReplyThatBringsMoreThanItAnnouncesIsHandedOutWhole();
    void aReplyThatBringsMoreInALaterArrivalIsWhatWasThereInTime();
    void anEmptyLineBeyondTheAnnouncedLengthLeavesNoBody();
    void aReplyInOneBytePiecesIsHandedOutOnceAtItsLastByte();
    void damagedBytesReadTheSameHoweverTheyAreCut();
    void whatIsNeverComplete_data();
    void whatIsNeverComplete();
    void theLengthCountsUnitsOfTextNotBytes();
    void aNegativeLengthLeavesNothingToWaitFor();
    void aNewStatusLineDropsAnUnfinishedReply();
    void aNewStatusLineFollowsAReplyThatNeverCompletes();
    void theFirstBytesAfterAReplyBeginANewOne();
    void twoRepliesInOneArrivalAreNone();
    void resetForgetsABegunReply();
    void anEndlessReplyIsNotKept();
};

namespace {

QStringList readPieces(const QByteArrayList& pieces)
{
    ReplyReader reader;
    QStringList replies;
    for (const QByteArray& piece : pieces) {
        reader.feed(piece);
        while (const auto reply = reader.takeReply()) {
            replies.append(*reply);
        }
    }
    return replies;
}

QStringList readWhole(const QByteArray& bytes)
{
    return readPieces({bytes});
}

QByteArrayList singleBytes(const QByteArray& bytes)
{
    QByteArrayList pieces;
    for (const char byte : bytes) {
        pieces.append(QByteArray(1, byte));
    }
    return pieces;
}

} // namespace

void TestReplyReader::aReplyThatBringsWhatItAnnouncesIsTheSameWhereverItIsCut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("JSON") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 8\r\n\r\n{\"a\": 1}");
    QTest::newRow("characters of two, three and four bytes")
        << QByteArray("HTTP/1.1 200 OK\r\nX: \xC3\x84\r\nContent-Length: 6\r\n\r\n"
                      "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xA4\"\"");
    QTest::newRow("a line end in the body")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n\r\n{}\r\n");
    QTest::newRow("another protocol version")
        << QByteArray("HTTP/1.0 200 OK\r\nContent-Length: 2\r\n\r\n{}");
}

void TestReplyReader::aReplyThatBringsWhatItAnnouncesIsTheSameWhereverItIsCut()
{
    QFETCH(const QByteArray, bytes);
    const QStringList whole = readWhole(bytes);
    QCOMPARE(whole.size(), 1);
    for (qsizetype cut = 0; cut <= bytes.size(); ++cut) {
        QCOMPARE(readPieces({bytes.first(cut), bytes.sliced(cut)}), whole);
    }
    QCOMPARE(readPieces(singleBytes(bytes)), whole);
}

void TestReplyReader::aReplyThatBringsMoreThanItAnnouncesIsHandedOutWhole_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::newRow("too little") << QByteArray("5");
    QTest::newRow("one too few") << QByteArray("21");
    QTest::newRow("a negative length") << QByteArray("-1");
}

void TestReplyReader::aReplyThatBringsMoreThanItAnnouncesIsHandedOutWhole()
{
    QFETCH(const QByteArray, length);
    const QByteArray bytes =
        "HTTP/1.1 200 OK\r\nContent-Length: " + length + "\r\n\r\n{\"access-token\": \"T1\"}";
    QCOMPARE(readWhole(bytes), QStringList(QString::fromUtf8(bytes)));
}

void TestReplyReader::aReplyThatBringsMoreInALaterArrivalIsWhatWasThereInTime()
{
    const QByteArray inTime = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{} ";
    QCOMPARE(readPieces({inTime, "and more"}), QStringList(QString::fromUtf8(inTime)));
}

void TestReplyReader::anEmptyLineBeyondTheAnnouncedLengthLeavesNoBody()
{
    const QByteArray rest = "\r\n\r\n{}\r\n\r\nmore";
    QCOMPARE(readWhole("HTTP/1.1 200 OK\r\nContent-Length: 2" + rest), QStringList());
    // Nothing is waited for here, so it is handed out; HttpReply then finds no body in it.
    QCOMPARE(readWhole("HTTP/1.1 200 OK\r\nContent-Length: -2" + rest).size(), 1);
}

void TestReplyReader::aReplyInOneBytePiecesIsHandedOutOnceAtItsLastByte()
{
    const QByteArray bytes = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}";
    ReplyReader reader;
    for (const QByteArray& byte : singleBytes(bytes.chopped(1))) {
        reader.feed(byte);
        QVERIFY(!reader.takeReply());
    }
    reader.feed(bytes.last(1));
    QCOMPARE(reader.takeReply(), QString::fromUtf8(bytes));
    QVERIFY(!reader.takeReply());
}

void TestReplyReader::damagedBytesReadTheSameHoweverTheyAreCut()
{
    const QByteArray pool("\x41\x0D\x0A\xE2\x82\xAC\xC3\xA4\xF0\x9F\x8E\xFF\xC0\xED\xA0\x80\xEF\xBB"
                          "\xBF\xF5\xF4\x90");
    QRandomGenerator random(1);
    for (int run = 0; run < 20000; ++run) {
        QByteArray body;
        for (int i = 0; i < 8; ++i) {
            body.append(pool.at(random.bounded(int(pool.size()))));
        }
        // What a reader makes of the bytes says how long they are as text.
        const QString text = readWhole("Content-Length: -1\r\n\r\n" + body).first();
        const QByteArray length =
            QByteArray::number(text.section(QStringLiteral("\r\n\r\n"), 1).size());
        const QByteArray bytes = "X\r\nContent-Length: " + length + "\r\n\r\n" + body;
        QCOMPARE(readPieces(singleBytes(bytes)), readWhole(bytes));
    }
}

void TestReplyReader::whatIsNeverComplete_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no length") << QByteArray("HTTP/1.1 200 OK\r\n\r\n{}");
    QTest::newRow("a length of 0") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n{}");
    QTest::newRow("a length that is no number")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: two\r\n\r\n{}");
    QTest::newRow("a length in lower case")
        << QByteArray("HTTP/1.1 200 OK\r\ncontent-length: 2\r\n\r\n{}");
    QTest::newRow("fewer than announced")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\n{}");
    QTest::newRow("a huge length")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 2147483647\r\n\r\n{}");
    QTest::newRow("an empty line in the body")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n{\r\n\r\n}");
    QTest::newRow("no end of the header")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: -1\r\n");
    QTest::newRow("a length in bytes of a text beyond ASCII")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n\"\xC3\xA4\"");
}

void TestReplyReader::whatIsNeverComplete()
{
    QFETCH(const QByteArray, bytes);
    QCOMPARE(readWhole(bytes), QStringList());
    QCOMPARE(readPieces(singleBytes(bytes)), QStringList());
}

void TestReplyReader::theLengthCountsUnitsOfTextNotBytes()
{
    const QByteArray bytes = "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\n\xC3\xA4\xF0\x9F\x8E\xA4";
    QCOMPARE(readWhole(bytes), QStringList(QString::fromUtf8(bytes)));
}

void TestReplyReader::aNegativeLengthLeavesNothingToWaitFor()
{
    const QByteArray header = "HTTP/1.1 200 OK\r\nContent-Length: -5\r\n\r\n";
    QCOMPARE(readWhole(header), QStringList(QString::fromUtf8(header)));
}

void TestReplyReader::aNewStatusLineDropsAnUnfinishedReply()
{
    const QByteArray second = "HTTP/1.1 201 Created\r\nContent-Length: 2\r\n\r\n{}";
    QCOMPARE(readPieces({"HTTP/1.1 200 OK\r\nContent-Length: 90\r\n\r\n{\xE2\x82", second}),
             QStringList(QString::fromUtf8(second)));
}

void TestReplyReader::aNewStatusLineFollowsAReplyThatNeverCompletes()
{
    const QByteArray second = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}";
    QCOMPARE(readPieces({"HTTP/1.1 100 Continue\r\n\r\n", second}),
             QStringList(QString::fromUtf8(second)));
}

void TestReplyReader::theFirstBytesAfterAReplyBeginANewOne()
{
    const QByteArray reply = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}";
    const QStringList twice(2, QString::fromUtf8(reply));
    for (qsizetype cut = 1; cut < 8; ++cut) {
        QCOMPARE(readPieces({reply, reply.first(cut), reply.sliced(cut)}), twice);
    }
}

void TestReplyReader::twoRepliesInOneArrivalAreNone()
{
    const QByteArray reply = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}";
    QCOMPARE(readPieces({reply + reply, reply}), QStringList(QString::fromUtf8(reply)));
}

void TestReplyReader::resetForgetsABegunReply()
{
    const QByteArray reply = "HTTP/1.0 200 OK\r\nContent-Length: 2\r\n\r\n{}";
    ReplyReader reader;
    reader.feed(reply.chopped(1) + '\xC3');
    reader.reset();
    reader.feed(reply);
    QCOMPARE(reader.takeReply(), QString::fromUtf8(reply));
}

void TestReplyReader::anEndlessReplyIsNotKept()
{
    ReplyReader reader;
    const QByteArray piece(ReplyReader::maxLength / 16, 'x');
    for (qsizetype fed = 0; fed <= ReplyReader::maxLength; fed += piece.size()) {
        reader.feed(piece);
        QVERIFY(!reader.takeReply());
    }
    reader.feed("\r\nContent-Length: 2\r\n\r\n{}");
    QVERIFY(!reader.takeReply());
    reader.feed("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}");
    QVERIFY(reader.takeReply());
}

TESSEL_TEST_MAIN(TestReplyReader)
#include "tst_replyreader.moc"
