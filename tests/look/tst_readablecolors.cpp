#include "contrast.h"
#include "readablecolors.h"
#include "testcase.h"

#include <QLineEdit>
#include <QTest>

class TestReadableColors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paleTextsCanBeRead_data();
    void paleTextsCanBeRead();
    void coloursThatCanBeReadAreKept();
    void theColoursFollowThePalette();
};

namespace {

QPalette paletteOf(const QColor& base, const QColor& text, const QColor& highlight,
                   const QColor& highlightedText)
{
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, highlightedText);
    return palette;
}

struct Field
{
    explicit Field(const QPalette& palette)
    {
        parent.setPalette(palette);
        new ReadableColors(edit);
    }

    QColor color(QPalette::ColorRole role) const
    {
        return edit->palette().color(QPalette::Active, role);
    }

    bool isReadable() const
    {
        return contrast(color(QPalette::PlaceholderText), color(QPalette::Base)) >= 4.5 &&
               contrast(color(QPalette::HighlightedText), color(QPalette::Highlight)) >= 4.5;
    }

    QWidget parent;
    QLineEdit* edit = new QLineEdit(&parent);
};

const QColor lightBlue(0x30, 0x8C, 0xC6);

} // namespace

void TestReadableColors::paleTextsCanBeRead_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("white on light blue") << paletteOf(Qt::white, Qt::black, lightBlue, Qt::white);
    QTest::newRow("black on deep blue")
        << paletteOf(Qt::white, Qt::black, QColor(0, 0, 0xA0), Qt::black);
    QTest::newRow("a dark list") << paletteOf(QColor(0x1B, 0x1E, 0x20), QColor(0xFC, 0xFC, 0xFC),
                                              QColor(0x3D, 0xAE, 0xE9), QColor(0xFC, 0xFC, 0xFC));
    QTest::newRow("gray on gray") << paletteOf(Qt::gray, Qt::black, Qt::gray, Qt::gray);
}

void TestReadableColors::paleTextsCanBeRead()
{
    QFETCH(const QPalette, palette);
    const Field field(palette);
    QVERIFY(field.isReadable());
    QCOMPARE(field.color(QPalette::HighlightedText),
             palette.color(QPalette::Active, QPalette::HighlightedText));
}

void TestReadableColors::coloursThatCanBeReadAreKept()
{
    const QPalette palette = paletteOf(Qt::black, Qt::white, Qt::darkBlue, Qt::white);
    const Field field(palette);
    QCOMPARE(field.color(QPalette::Highlight), QColor(Qt::darkBlue));
    QCOMPARE(field.color(QPalette::PlaceholderText), QColor(0x7F, 0x7F, 0x7F));
}

void TestReadableColors::theColoursFollowThePalette()
{
    Field field(paletteOf(Qt::white, Qt::black, lightBlue, Qt::white));
    const QColor light = field.color(QPalette::PlaceholderText);
    field.parent.setPalette(paletteOf(Qt::black, Qt::white, Qt::darkGreen, Qt::white));
    QVERIFY(field.isReadable());
    QVERIFY(field.color(QPalette::PlaceholderText) != light);
    QCOMPARE(field.color(QPalette::Highlight), QColor(Qt::darkGreen));
    field.parent.setPalette(paletteOf(Qt::white, Qt::black, lightBlue, Qt::white));
    QVERIFY(field.isReadable());
    QCOMPARE(field.color(QPalette::PlaceholderText), light);
}

TESSEL_TEST_MAIN(TestReadableColors)
#include "tst_readablecolors.moc"
