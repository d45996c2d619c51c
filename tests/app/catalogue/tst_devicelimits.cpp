#include "deviceclass.h"
#include "devicelimits.h"
#include "testcase.h"

#include <QTest>

class TestDeviceLimits : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyLimitOfARoomIsReachedBeforeItIsBroken_data();
    void everyLimitOfARoomIsReachedBeforeItIsBroken();
    void aSetCountsMicrophonesAndSpeakersTogetherOnly();
    void aBreachConcernsWhatIsCounted();
};

namespace {

QStringList words(const QList<LimitBreach>& breaches)
{
    QStringList texts;
    for (const LimitBreach& breach : breaches) {
        texts.append(breachWords(breach));
    }
    return texts;
}

} // namespace

void TestDeviceLimits::everyLimitOfARoomIsReachedBeforeItIsBroken_data()
{
    QTest::addColumn<int>("hubs");
    QTest::addColumn<int>("microphones");
    QTest::addColumn<int>("speakers");
    QTest::addColumn<int>("controllers");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const QList<int>& counts, const QStringList& expected) {
        QTest::newRow(name) << counts.at(0) << counts.at(1) << counts.at(2) << counts.at(3)
                            << expected;
    };
    row("nothing", {0, 0, 0, 0}, {});
    row("all that is possible", {1, 1, 15, 8}, {});
    row("16 microphones", {1, 16, 0, 8}, {});
    row("a second hub", {2, 0, 0, 0}, {QStringLiteral("2 PX-HBs; 1 is possible")});
    row("a microphone too many", {0, 17, 0, 0},
        {QStringLiteral("17 microphones; 16 are possible"),
         QStringLiteral("17 microphones and speakers together; 16 are possible")});
    row("a speaker too many", {0, 0, 16, 0}, {QStringLiteral("16 speakers; 15 are possible")});
    row("too many together", {0, 9, 8, 0},
        {QStringLiteral("17 microphones and speakers together; 16 are possible")});
    row("a controller too many", {0, 0, 0, 9}, {QStringLiteral("9 controllers; 8 are possible")});
}

void TestDeviceLimits::everyLimitOfARoomIsReachedBeforeItIsBroken()
{
    QFETCH(const int, hubs);
    QFETCH(const int, microphones);
    QFETCH(const int, speakers);
    QFETCH(const int, controllers);
    QFETCH(const QStringList, expected);
    QCOMPARE(words(breachesOfRoom({hubs, microphones, speakers, controllers})), expected);
}

void TestDeviceLimits::aSetCountsMicrophonesAndSpeakersTogetherOnly()
{
    QCOMPARE(words(breachesOfSet({1, 0, 16, 8})), QStringList());
    QCOMPARE(words(breachesOfSet({2, 17, 0, 9})),
             (QStringList{QStringLiteral("2 PX-HBs; 1 is possible"),
                          QStringLiteral("17 microphones and speakers together; 16 are possible"),
                          QStringLiteral("9 controllers; 8 are possible")}));
}

void TestDeviceLimits::aBreachConcernsWhatIsCounted()
{
    const LimitBreach together{LimitBreach::Limit::MicrophonesAndSpeakers, 17, 16};
    QVERIFY(concernsMicrophones(together) && concernsSpeakers(together));
    const LimitBreach hubs{LimitBreach::Limit::Hubs, 2, 1};
    QVERIFY(!concernsMicrophones(hubs) && !concernsSpeakers(hubs));
    const LimitBreach speakers{LimitBreach::Limit::Speakers, 16, 15};
    QVERIFY(!concernsMicrophones(speakers) && concernsSpeakers(speakers));
}

TESSEL_TEST_MAIN(TestDeviceLimits)
#include "tst_devicelimits.moc"
