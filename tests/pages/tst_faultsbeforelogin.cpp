#include "faultrow.h"
#include "testcase.h"

#include <QTest>

/// A hub that goes wrong before the user is asked for its password.
class TestFaultsBeforeLogIn : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry();
};

void TestFaultsBeforeLogIn::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::Status, Exchange::Token});
}

void TestFaultsBeforeLogIn::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.1.1"));
}

TESSEL_TEST_MAIN(TestFaultsBeforeLogIn)
#include "tst_faultsbeforelogin.moc"
