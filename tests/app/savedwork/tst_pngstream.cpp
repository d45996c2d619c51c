#include "pngstream.h"
#include "testcase.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

namespace {

QByteArray png(QSize size, QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(size, format);
    image.fill(0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "png") ? bytes : QByteArray();
}

} // namespace

class TestPngStream : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pictureIsMeasuredWhateverFollows_data();
    void pictureIsMeasuredWhateverFollows();
    void cutPictureIsNone();
    void damagedPictureIsNone();
    void absurdChunkLengthIsNone();
    void compressedTextsAreRefused();
    void otherBytesAreNoPicture_data();
    void otherBytesAreNoPicture();
};

void TestPngStream::pictureIsMeasuredWhateverFollows_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size");
    QTest::newRow("thumbnail") << png({64, 64}) << QSize(64, 64);
    QTest::newRow("one pixel") << png({1, 1}) << QSize(1, 1);
    QTest::newRow("wide") << png({300, 2}) << QSize(300, 2);
    QTest::newRow("two colours") << png({9, 9}, QImage::Format_Mono) << QSize(9, 9);
    QTest::newRow("palette") << png({9, 8}, QImage::Format_Grayscale8) << QSize(9, 8);
}

void TestPngStream::pictureIsMeasuredWhateverFollows()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QSize, size);
    for (const QByteArray& behind : {QByteArray(), QByteArray("rest"), bytes}) {
        const auto extent = measurePng(bytes + behind);
        QVERIFY(extent);
        QCOMPARE(extent->length, bytes.size());
        QCOMPARE(extent->size, size);
    }
}

void TestPngStream::cutPictureIsNone()
{
    const QByteArray bytes = png({64, 64});
    for (qsizetype length = 0; length < bytes.size(); ++length) {
        QVERIFY2(!measurePng(bytes.first(length)), qPrintable(QString::number(length)));
    }
}

void TestPngStream::damagedPictureIsNone()
{
    const QByteArray bytes = png({64, 64});
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        for (const char mask : {'\x01', '\x80', '\xff'}) {
            QByteArray damaged = bytes;
            damaged[at] = char(damaged.at(at) ^ mask);
            QVERIFY2(!measurePng(damaged), qPrintable(QString::number(at)));
        }
    }
}

void TestPngStream::absurdChunkLengthIsNone()
{
    QByteArray bytes = png({64, 64});
    for (const QByteArray& length : {QByteArray("\xff\xff\xff\xff"), QByteArray("\x7f\xff\xff\xff"),
                                     QByteArray("\x80\x00\x00\x00", 4)}) {
        QVERIFY(!measurePng(bytes.replace(8, 4, length)));
    }
}

void TestPngStream::compressedTextsAreRefused()
{
    QImage image({4, 4}, QImage::Format_ARGB32);
    image.fill(0);
    image.setText(QStringLiteral("note"), QString(1'000'000, QLatin1Char('x')));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "png"));
    QVERIFY(bytes.size() < 10'000);
    QVERIFY(!measurePng(bytes));
}

void TestPngStream::otherBytesAreNoPicture_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = png({64, 64});
    const qsizetype headerChunk = 25;
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("zeros") << QByteArray(1000, '\0');
    QTest::newRow("signature only") << whole.first(8);
    QTest::newRow("no header") << whole.first(8) + whole.sliced(8 + headerChunk);
    QTest::newRow("no end") << whole.chopped(12);
    QTest::newRow("another format") << QByteArray("GIF89a") + whole;
}

void TestPngStream::otherBytesAreNoPicture()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!measurePng(bytes));
}

TESSEL_TEST_MAIN(TestPngStream)
#include "tst_pngstream.moc"
