#include "faultrow.h"
#include "testcase.h"

#include <QTest>

/// A hub that goes wrong when it is asked where its presets are stored.
class TestFaultsAtExport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry();
};

void TestFaultsAtExport::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::StartExport, Exchange::ReadExport});
}

void TestFaultsAtExport::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.3.1"));
}

TESSEL_TEST_MAIN(TestFaultsAtExport)
#include "tst_faultsatexport.moc"
