#include "faultrow.h"
#include "testcase.h"

#include <QTest>

/// A hub that goes wrong when all its presets are there.
class TestFaultsAtTheEnd : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry();
};

void TestFaultsAtTheEnd::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::Recall, Exchange::Invalidate});
}

void TestFaultsAtTheEnd::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.5.1"));
}

TESSEL_TEST_MAIN(TestFaultsAtTheEnd)
#include "tst_faultsattheend.moc"
