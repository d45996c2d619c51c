#include "terminal.h"
#include "testcase.h"

#include <QBuffer>
#include <QTest>

namespace {

const QString name = QStringLiteral("tesselctl: ");

/// A sentence of far more than 80 letters.
const QString longLine = QStringLiteral("hall.tessel: ") +
                         QStringLiteral("a word and another ").repeated(8) + QStringLiteral("end");

/// What a line that is said looks like.
QStringList said(const QString& line, bool isWatched)
{
    QBuffer data;
    QBuffer talk;
    data.open(QIODevice::WriteOnly);
    talk.open(QIODevice::WriteOnly);
    Terminal terminal(&data, &talk, isWatched);
    terminal.say(line);
    return QString::fromUtf8(talk.data()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

/// What commands say.
class TestTerminal : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatAPersonWatchesFitsTheTerminal();
    void whatIsReadByAProgramIsOneLine();
    void whatATerminalWouldActUponIsShownAsAMark();
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

TESSEL_TEST_MAIN(TestTerminal)
#include "tst_terminal.moc"
