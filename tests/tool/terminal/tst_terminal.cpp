#include "terminal.h"
#include "testcase.h"

#include <QBuffer>
#include <QTest>

#include <memory>

namespace {

/// A terminal whose two streams are kept.
struct KeptTerminal
{
    explicit KeptTerminal(bool isWatched)
    {
        data.open(QIODevice::WriteOnly);
        talk.open(QIODevice::WriteOnly);
        terminal = std::make_unique<Terminal>(&data, &talk, isWatched);
    }

    QBuffer data;
    QBuffer talk;
    std::unique_ptr<Terminal> terminal;
};

} // namespace

/// What stands at the bottom of a terminal while more is said.
class TestTerminal : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsSaidStandsAboveTheQuestion();
    void whatIsDrawnIsDrawnOver();
    void whatWasLetGoStays();
    void nothingIsDrawnWhereNobodyWatches();
    void charactersThatActOnTerminalsAreNotDrawn();
};

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
