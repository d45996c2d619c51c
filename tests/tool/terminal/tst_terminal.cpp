#include "terminal.h"
#include "testcase.h"

#include <QBuffer>
#include <QTest>

#include <memory>

namespace {

/// A terminal whose two streams are kept.
struct KeptTerminal
{
    explicit KeptTerminal(bool isWatched, int width = 80)
    {
        data.open(QIODevice::WriteOnly);
        talk.open(QIODevice::WriteOnly);
        terminal = std::make_unique<Terminal>(&data, &talk, isWatched, width);
    }

    QBuffer data;
    QBuffer talk;
    std::unique_ptr<Terminal> terminal;
};

const QString name = QStringLiteral("tesselctl: ");

/// A sentence of far more than 80 letters.
const QString longLine = QStringLiteral("hall.tessel: ") +
                         QStringLiteral("a word and another ").repeated(8) + QStringLiteral("end");

/// What a line that is said looks like.
QStringList said(const QString& line, bool isWatched)
{
    KeptTerminal kept(isWatched);
    kept.terminal->say(line);
    return QString::fromUtf8(kept.talk.data()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

/// What commands say, and what stands at the bottom of a terminal meanwhile.
class TestTerminal : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatAPersonWatchesFitsTheTerminal();
    void whatIsReadByAProgramIsOneLine();
    void whatATerminalWouldActUponIsShownAsAMark();
    void whatIsSaidStandsAboveTheQuestion();
    void whatIsDrawnIsDrawnOver();
    void allRowsOfALongLineAreDrawnOver_data();
    void allRowsOfALongLineAreDrawnOver();
    void whatWasLetGoStays();
    void nothingIsDrawnWhereNobodyWatches();
    void charactersThatActOnTerminalsAreNotDrawn();
};

void TestTerminal::whatAPersonWatchesFitsTheTerminal()
{
    const QStringList lines = said(longLine, true);
    QVERIFY(lines.size() > 1);
    QStringList parts;
    for (const QString& line : lines) {
        QVERIFY2(line.startsWith(name) && line.size() <= 80, qPrintable(line));
        parts.append(line.mid(name.size()));
    }
    QCOMPARE(parts.join(u' '), longLine);
    QCOMPARE(said(QStringLiteral("short"), true), QStringList(name + QStringLiteral("short")));
}

void TestTerminal::whatIsReadByAProgramIsOneLine()
{
    QCOMPARE(said(longLine, false), QStringList(name + longLine));
}

void TestTerminal::whatATerminalWouldActUponIsShownAsAMark()
{
    for (const bool isWatched : {false, true}) {
        QCOMPARE(said(QStringLiteral("a\x1b[2Jb\nc"), isWatched),
                 QStringList(name + QStringLiteral("a?[2Jb?c")));
    }
}

void TestTerminal::whatIsSaidStandsAboveTheQuestion()
{
    KeptTerminal kept(true);
    kept.terminal->ask(QStringLiteral("who? "));
    kept.terminal->say(QStringLiteral("news"));
    QCOMPARE(kept.talk.data(), QByteArray("tesselctl: who? \r\x1b[Jtesselctl: news\n"
                                          "tesselctl: who? "));
}

void TestTerminal::whatIsDrawnIsDrawnOver()
{
    KeptTerminal kept(true);
    kept.terminal->draw({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    kept.terminal->draw({QStringLiteral("four")});
    QCOMPARE(kept.talk.data(), QByteArray("one\ntwo\nthree\r\x1b[2A\x1b[Jfour"));
}

void TestTerminal::allRowsOfALongLineAreDrawnOver_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QByteArray>("up");
    QTest::newRow("nothing") << QString() << QByteArray("\x1b[1A");
    QTest::newRow("the whole width") << QString(10, u'x') << QByteArray("\x1b[1A");
    QTest::newRow("a letter more") << QString(11, u'x') << QByteArray("\x1b[2A");
    QTest::newRow("three rows") << QString(30, u'x') << QByteArray("\x1b[3A");
    QTest::newRow("letters of two columns") << QString(6, u'\u6f22') << QByteArray("\x1b[2A");
}

void TestTerminal::allRowsOfALongLineAreDrawnOver()
{
    QFETCH(const QString, line);
    QFETCH(const QByteArray, up);
    KeptTerminal kept(true, 10);
    kept.terminal->draw({line, QStringLiteral("end")});
    kept.terminal->draw({QStringLiteral("new")});
    QCOMPARE(kept.talk.data(), line.toUtf8() + "\nend\r" + up + "\x1b[Jnew");
}

void TestTerminal::whatWasLetGoStays()
{
    KeptTerminal kept(true);
    kept.terminal->draw({QStringLiteral("bar")});
    kept.terminal->letGo();
    kept.terminal->letGo();
    kept.terminal->say(QStringLiteral("end"));
    QCOMPARE(kept.talk.data(), QByteArray("bar\ntesselctl: end\n"));
}

void TestTerminal::nothingIsDrawnWhereNobodyWatches()
{
    KeptTerminal kept(false);
    kept.terminal->draw({QStringLiteral("bar")});
    kept.terminal->ask(QStringLiteral("who? "));
    kept.terminal->letGo();
    QCOMPARE(kept.talk.data(), QByteArray("tesselctl: who? \n"));
}

void TestTerminal::charactersThatActOnTerminalsAreNotDrawn()
{
    KeptTerminal kept(true);
    kept.terminal->draw({QStringLiteral("a\x1b[2Jb")});
    QCOMPARE(kept.talk.data(), QByteArray("a?[2Jb"));
}

TESSEL_TEST_MAIN(TestTerminal)
#include "tst_terminal.moc"
