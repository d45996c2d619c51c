#include "quietline.h"
#include "testcase.h"

#include <QAccessible>
#include <QTest>

class TestQuietLine : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAStatusBarNamedByWhatItSays();
    void saysOneSentenceAndHowManyMoreThereAre();
    void nothingToSayEmptiesIt();
};

void TestQuietLine::isAStatusBarNamedByWhatItSays()
{
    QuietLine line(nullptr);
    line.show();
    line.say({QStringLiteral("Draw two rooms or more.")});
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&line);
    QCOMPARE(told->role(), QAccessible::StatusBar);
    QCOMPARE(told->text(QAccessible::Name), QStringLiteral("Draw two rooms or more."));
}

void TestQuietLine::saysOneSentenceAndHowManyMoreThereAre()
{
    QuietLine line(nullptr);
    line.say({QStringLiteral("One %2."), QStringLiteral("Two."), QStringLiteral("Three.")});
    QCOMPARE(line.text(), QStringLiteral("One %2. And 2 more."));
    QCOMPARE(line.toolTip(), QStringLiteral("One %2.\nTwo.\nThree."));
    line.say({QStringLiteral("One.")});
    QCOMPARE(line.text(), QStringLiteral("One."));
    QCOMPARE(line.toolTip(), QString());
}

void TestQuietLine::nothingToSayEmptiesIt()
{
    QuietLine line(nullptr);
    line.say({QStringLiteral("One."), QStringLiteral("Two.")});
    line.say({});
    QCOMPARE(line.text(), QString());
    QCOMPARE(line.toolTip(), QString());
}

TESSEL_TEST_MAIN(TestQuietLine)
#include "tst_quietline.moc"
