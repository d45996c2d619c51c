#include "faultrow.h"
#include "testcase.h"

#include <QTest>

/// A hub that goes wrong when it is given a password.
class TestFaultsAtLogIn : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry();
};

void TestFaultsAtLogIn::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::SetPassword, Exchange::LogIn});
}

void TestFaultsAtLogIn::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.2.1"));
}

TESSEL_TEST_MAIN(TestFaultsAtLogIn)
#include "tst_faultsatlogin.moc"
