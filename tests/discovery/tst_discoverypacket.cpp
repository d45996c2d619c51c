#include "discoverypacket.h"
#include "mactext.h"
#include "scriptedreply.h"
#include "testcase.h"

#include <QTest>

#include <functional>

class TestDiscoveryPacket : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theQueryIsTheExactFortyOneBytes();
    void theQueryWithoutAnAddressIsTheShortenedTwentyFiveBytes();
    void theQueryCarriesAnIpv6AddressInFull();
    void theQueryFlags_data();
    void theQueryFlags();
    void aQueryReadsBackEqual();
    void everyFieldOfAReplyIsRead();
    void datagramsThatAreRefused_data();
    void datagramsThatAreRefused();
    void flagsByte_data();
    void flagsByte();
    void bodyIndicator_data();
    void bodyIndicator();
    void addressFamily_data();
    void addressFamily();
    void aTextLengthOf0x80AndMoreTakesEverythingUpToTheEnd_data();
    void aTextLengthOf0x80AndMoreTakesEverythingUpToTheEnd();
    void aLengthOf0x8000AndMoreNeverMatches();
    void truncationAtEveryByteIsRefusedOrReadAsEmpty();
    void truncationAtEveryByteWithARightLengthReadsWhatIsThere();
    void everyLengthByteValueAtEveryTextIsSurvived();
    void addressBytes_data();
    void addressBytes();
    void macText_data();
    void macText();
    void macComparison_data();
    void macComparison();
};

namespace {

ScriptedReply reply()
{
    return ScriptedReply::from(QStringLiteral("192.168.0.10"), "PX-HB", 2);
}

void fixLength(QByteArray& bytes)
{
    bytes[4] = char((bytes.size() - 6) / 256);
    bytes[5] = char((bytes.size() - 6) % 256);
}

constexpr qsizetype serviceLengthOffset = 30;
constexpr qsizetype nameLengthOffset = 41;
constexpr qsizetype modelLengthOffset = 48;
constexpr qsizetype trailingLengthOffset = 54;

} // namespace

void TestDiscoveryPacket::theQueryIsTheExactFortyOneBytes()
{
    const QByteArray query = buildDiscoveryQuery(QStringLiteral("192.168.0.200"), 0, 0);
    QCOMPARE(query.size(), 41);
    QCOMPARE(query.toHex(' '),
             QByteArray("51 4e 46 4c 00 23 00 04 c0 a8 00 c8 00 00 00 00 00 00 00 00 00 00 00 00 "
                        "00 00 00 00 00 00 08 5f 71 6e 6f 2d 73 63 70 00 00"));
}

void TestDiscoveryPacket::theQueryWithoutAnAddressIsTheShortenedTwentyFiveBytes()
{
    const QByteArray expected("51 4e 46 4c 00 13 00 00 00 00 00 00 00 00 08 5f 71 6e 6f 2d 73 63 "
                              "70 00 00");
    const QByteArray query = buildDiscoveryQuery(QString(), 0, 0);
    QCOMPARE(query.size(), 25);
    QCOMPARE(query.toHex(' '), expected);
    QCOMPARE(buildDiscoveryQuery(QStringLiteral("not an address"), 0, 0), query);
}

void TestDiscoveryPacket::theQueryCarriesAnIpv6AddressInFull()
{
    const QByteArray query = buildDiscoveryQuery(QStringLiteral("fe80::102:f0ff"), 0, 0);
    QCOMPARE(query.size(), 41);
    QCOMPARE(query.mid(7, 17).toHex(), QByteArray("06fe8000000000000000000000"
                                                  "0102f0ff"));
}

void TestDiscoveryPacket::theQueryFlags_data()
{
    QTest::addColumn<int>("replyFlag");
    QTest::addColumn<int>("modeFlag");
    QTest::addColumn<int>("flags");
    QTest::newRow("query") << 0 << 0 << 0x00;
    QTest::newRow("query, mode 1") << 0 << 1 << 0x01;
    QTest::newRow("reply") << 1 << 0 << 0x80;
    QTest::newRow("reply, mode 1") << 1 << 1 << 0x81;
    QTest::newRow("only 1 sets a flag") << 2 << -1 << 0x00;
}

void TestDiscoveryPacket::theQueryFlags()
{
    QFETCH(const int, replyFlag);
    QFETCH(const int, modeFlag);
    const QByteArray query = buildDiscoveryQuery(QString(), replyFlag, modeFlag);
    QTEST(int(static_cast<unsigned char>(query.at(6))), "flags");
}

void TestDiscoveryPacket::aQueryReadsBackEqual()
{
    const auto packet = parseDiscoveryPacket(buildDiscoveryQuery(QStringLiteral("10.1.2.3"), 1, 1));
    QVERIFY(packet.has_value());
    QCOMPARE(packet->replyFlag, 1);
    QCOMPARE(packet->modeFlag, 1);
    QCOMPARE(packet->ipText, QStringLiteral("10.1.2.3"));
    QCOMPARE(packet->mac, QByteArray(6, '\0'));
    QCOMPARE(packet->serviceText, QStringLiteral("_qno-scp"));
    QVERIFY(packet->nameText.isEmpty() && packet->modelText.isEmpty());
}

void TestDiscoveryPacket::everyFieldOfAReplyIsRead()
{
    ScriptedReply fields = reply();
    fields.name = "S\xc3\xa4l";
    const auto packet = parseDiscoveryPacket(fields.bytes());
    QVERIFY(packet.has_value());
    QCOMPARE(packet->replyFlag, 1);
    QCOMPARE(packet->modeFlag, 0);
    QCOMPARE(packet->ipText, QStringLiteral("192.168.0.10"));
    QCOMPARE(packet->mac.toHex(), QByteArray("00a0de0f1002"));
    QCOMPARE(packet->serviceText, QStringLiteral("_qno-scp"));
    QCOMPARE(packet->nameText, QStringLiteral("Säl"));
    QCOMPARE(packet->modelText, QStringLiteral("PX-HB"));
    QCOMPARE(packet->trailingText, QStringLiteral("end"));
}

void TestDiscoveryPacket::datagramsThatAreRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, const std::function<void(ScriptedReply&)>& spoil) {
        ScriptedReply fields = reply();
        spoil(fields);
        QTest::newRow(name) << fields.bytes();
    };
    row("a length field one too high", [](ScriptedReply& fields) { fields.lengthError = 1; });
    row("a length field one too low", [](ScriptedReply& fields) { fields.lengthError = -1; });
    row("a length field 256 too high", [](ScriptedReply& fields) { fields.lengthError = 256; });
    row("another magic", [](ScriptedReply& fields) { fields.magic = "QNFM"; });
    row("a lower-case magic", [](ScriptedReply& fields) { fields.magic = "qnfl"; });
    row("a byte before the magic",
        [](ScriptedReply& fields) { fields.magic = QByteArray("\0QNFL", 5); });
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("the magic alone") << QByteArray("QNFL");
    QTest::newRow("half a length field") << QByteArray("QNFL\0", 5);
    QTest::newRow("two replies in one") << reply().bytes() + reply().bytes();
    QTest::newRow("a byte behind the reply") << reply().bytes() + 'x';
}

void TestDiscoveryPacket::datagramsThatAreRefused()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!parseDiscoveryPacket(bytes).has_value());
}

void TestDiscoveryPacket::flagsByte_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("replyFlag");
    QTest::addColumn<int>("modeFlag");
    QTest::newRow("0x00 is no reply") << 0x00 << 0 << 0;
    QTest::newRow("0x01 is no reply") << 0x01 << 0 << 1;
    QTest::newRow("0x80 is a reply") << 0x80 << 1 << 0;
    QTest::newRow("0x81 is a reply") << 0x81 << 1 << 1;
    QTest::newRow("only the low four bits are the mode") << 0xF1 << 1 << 1;
    QTest::newRow("mode 3 is not mode 1") << 0x83 << 1 << 0;
    QTest::newRow("0x7F is no reply") << 0x7F << 0 << 0;
}

void TestDiscoveryPacket::flagsByte()
{
    QFETCH(const int, flags);
    ScriptedReply fields = reply();
    fields.flags = char(flags);
    const auto packet = parseDiscoveryPacket(fields.bytes());
    QVERIFY(packet.has_value());
    QTEST(packet->replyFlag, "replyFlag");
    QTEST(packet->modeFlag, "modeFlag");
}

void TestDiscoveryPacket::bodyIndicator_data()
{
    QTest::addColumn<QByteArray>("indicator");
    QTest::addColumn<QString>("model");
    QTest::newRow("0 is accepted without texts") << QByteArray::fromHex("0000") << QString();
    QTest::newRow("1") << QByteArray::fromHex("0001") << QStringLiteral("PX-HB");
    QTest::newRow("the first byte counts too")
        << QByteArray::fromHex("0100") << QStringLiteral("PX-HB");
    QTest::newRow("all ones") << QByteArray::fromHex("ffff") << QStringLiteral("PX-HB");
}

void TestDiscoveryPacket::bodyIndicator()
{
    QFETCH(const QByteArray, indicator);
    ScriptedReply fields = reply();
    fields.bodyIndicator = indicator;
    const auto packet = parseDiscoveryPacket(fields.bytes());
    QVERIFY(packet.has_value());
    QTEST(packet->modelText, "model");
    QCOMPARE(packet->nameText.isEmpty(), packet->modelText.isEmpty());
}

void TestDiscoveryPacket::addressFamily_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QString>("ipText");
    QTest::newRow("4") << 4 << QStringLiteral("192.168.0.10");
    QTest::newRow("6") << 6 << QStringLiteral("-40-58:000a:0000:0000:0000:0000:0000:0000");
    QTest::newRow("0 is unknown") << 0 << QString();
    QTest::newRow("5 is unknown") << 5 << QString();
    QTest::newRow("0x84 is unknown") << 0x84 << QString();
}

void TestDiscoveryPacket::addressFamily()
{
    QFETCH(const int, family);
    ScriptedReply fields = reply();
    fields.family = char(family);
    const auto packet = parseDiscoveryPacket(fields.bytes());
    QVERIFY(packet.has_value());
    QTEST(packet->ipText, "ipText");
    QCOMPARE(packet->modelText, QStringLiteral("PX-HB"));
}

void TestDiscoveryPacket::aTextLengthOf0x80AndMoreTakesEverythingUpToTheEnd_data()
{
    QTest::addColumn<qsizetype>("offset");
    QTest::addColumn<int>("length");
    for (const int length : {0x80, 0x81, 0xC0, 0xFE, 0xFF}) {
        const auto row = [length](const char* field, qsizetype offset) {
            QTest::addRow("%s text, 0x%02x", field, length) << offset << length;
        };
        row("service", serviceLengthOffset);
        row("name", nameLengthOffset);
        row("model", modelLengthOffset);
        row("trailing", trailingLengthOffset);
    }
}

void TestDiscoveryPacket::aTextLengthOf0x80AndMoreTakesEverythingUpToTheEnd()
{
    QFETCH(const qsizetype, offset);
    QFETCH(const int, length);
    const QByteArray right = reply().bytes();
    QByteArray bytes = right;
    bytes[offset] = char(length);
    const auto packet = parseDiscoveryPacket(bytes);
    QVERIFY(packet.has_value());

    const QString toTheEnd = QString::fromUtf8(right.mid(offset + 1));
    const auto expected = [offset, toTheEnd](qsizetype field, const char* text) {
        const QString behind = field > offset ? QString() : QString::fromLatin1(text);
        return field == offset ? toTheEnd : behind;
    };
    QCOMPARE(packet->serviceText, expected(serviceLengthOffset, "_qno-scp"));
    QCOMPARE(packet->nameText, expected(nameLengthOffset, "device"));
    QCOMPARE(packet->modelText, expected(modelLengthOffset, "PX-HB"));
    QCOMPARE(packet->trailingText, expected(trailingLengthOffset, "end"));
}

void TestDiscoveryPacket::aLengthOf0x8000AndMoreNeverMatches()
{
    ScriptedReply fields = reply();
    const qsizetype textLess = fields.bytes().size() - fields.trailing.size();
    fields.trailing = QByteArray(0x8000 + 6 - textLess, 'x');
    QByteArray bytes = fields.bytes();
    QCOMPARE(bytes.size() - 6, 0x8000);
    QVERIFY(!parseDiscoveryPacket(bytes).has_value());
    bytes.chop(1);
    fixLength(bytes);
    QVERIFY(parseDiscoveryPacket(bytes).has_value());
}

void TestDiscoveryPacket::truncationAtEveryByteIsRefusedOrReadAsEmpty()
{
    const QByteArray whole = reply().bytes();
    for (qsizetype size = 0; size < whole.size(); ++size) {
        QVERIFY2(!parseDiscoveryPacket(whole.left(size)).has_value(),
                 qPrintable(QString::number(size)));
    }
}

void TestDiscoveryPacket::truncationAtEveryByteWithARightLengthReadsWhatIsThere()
{
    const QByteArray whole = reply().bytes();
    for (qsizetype size = 6; size < whole.size(); ++size) {
        QByteArray bytes = whole.left(size);
        fixLength(bytes);
        const auto packet = parseDiscoveryPacket(bytes);
        QVERIFY(packet.has_value());
        QCOMPARE(packet->replyFlag, size > 6 ? 1 : 0);
        QCOMPARE(packet->ipText.isEmpty(), size < 12);
        QCOMPARE(packet->mac, whole.mid(24, 6).left(qMax(qsizetype(0), size - 24)));
        const auto text = [size, whole](qsizetype offset, qsizetype length) {
            return QString::fromLatin1(whole.left(size).mid(offset + 1, length));
        };
        QCOMPARE(packet->serviceText, text(serviceLengthOffset, 8));
        QCOMPARE(packet->nameText, text(nameLengthOffset, 6));
        QCOMPARE(packet->modelText, text(modelLengthOffset, 5));
        QCOMPARE(packet->trailingText, text(trailingLengthOffset, 3));
    }
}

void TestDiscoveryPacket::everyLengthByteValueAtEveryTextIsSurvived()
{
    const QByteArray whole = reply().bytes();
    for (const qsizetype offset : {serviceLengthOffset, nameLengthOffset, modelLengthOffset}) {
        for (int length = 0; length < 256; ++length) {
            for (qsizetype size = offset + 1; size <= whole.size(); ++size) {
                QByteArray bytes = whole.left(size);
                bytes[offset] = char(length);
                fixLength(bytes);
                const auto packet = parseDiscoveryPacket(bytes);
                QVERIFY(packet.has_value());
                QVERIFY(packet->serviceText.size() + packet->modelText.size() <= size);
            }
        }
    }
}

void TestDiscoveryPacket::addressBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* hex, const QString& text) {
        QTest::newRow(name) << QByteArray::fromHex(hex) << text;
    };
    row("IPv4 is unsigned and not padded", "c0a8000a", QStringLiteral("192.168.0.10"));
    row("IPv4 of all ones", "ffffffff", QStringLiteral("255.255.255.255"));
    row("IPv6 is padded and lower case", "200102030405060708090a0b0c0d0e7f",
        QStringLiteral("2001:0203:0405:0607:0809:0a0b:0c0d:0e7f"));
    row("0xF0 is written as minus 10", "20f00000000000000000000000000000",
        QStringLiteral("20-10:0000:0000:0000:0000:0000:0000:0000"));
    row("0x80 and 0xFF are signed too", "80ff0000000000000000000000000001",
        QStringLiteral("-80-1:0000:0000:0000:0000:0000:0000:0001"));
    row("no bytes", "", QString());
    row("three bytes", "c0a800", QString());
    row("five bytes", "c0a8000a00", QString());
    row("fifteen bytes", "200102030405060708090a0b0c0d0e", QString());
    row("seventeen bytes", "200102030405060708090a0b0c0d0e0f10", QString());
}

void TestDiscoveryPacket::addressBytes()
{
    QFETCH(const QByteArray, bytes);
    QTEST(formatAddressBytes(bytes), "text");
}

void TestDiscoveryPacket::macText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("00 a0 de 0f 10 ff")
        << QByteArray::fromHex("00a0de0f10ff") << QStringLiteral("00:A0:DE:0F:10:FF");
    QTest::newRow("no bytes") << QByteArray() << QString();
    QTest::newRow("a cut one") << QByteArray::fromHex("00a0") << QStringLiteral("00:A0");
}

void TestDiscoveryPacket::macText()
{
    QFETCH(const QByteArray, bytes);
    QTEST(formatMac(bytes), "text");
}

void TestDiscoveryPacket::macComparison_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("expected");
    const auto row = [](const char* name, const char* a, const char* b, int expected) {
        QTest::newRow(name) << QString::fromLatin1(a) << QString::fromLatin1(b) << expected;
    };
    row("the last group decides", "00:A0:DE:00:00:01", "00:A0:DE:00:00:02", -1);
    row("the first that differs decides", "00:A0:DF:00:00:01", "00:A0:DE:00:00:02", 1);
    row("equal", "00:A0:DE:00:00:01", "00:A0:DE:00:00:01", 0);
    row("compared as numbers, not as text", "00:9F:00:00:00:00", "00:A0:00:00:00:00", -1);
    row("letter case does not matter", "00:a0:DE:00:00:01", "00:A0:de:00:00:01", 0);
    row("a missing group counts as zero", "00:A0:01", "00:A0", 1);
    row("groups that only the second has are not looked at", "00:A0", "00:A0:01", 0);
    row("an unreadable group counts as zero", "zz", "00", 0);
    row("both empty", "", "", 0);
}

void TestDiscoveryPacket::macComparison()
{
    QFETCH(const QString, a);
    QFETCH(const QString, b);
    QTEST(compareMacText(a, b), "expected");
}

TESSEL_TEST_MAIN(TestDiscoveryPacket)
#include "tst_discoverypacket.moc"
