#include "faultrow.h"
#include "testcase.h"

#include <QTest>

/// A hub that goes wrong while it is given its presets.
class TestFaultsAtPresets : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultHasItsOutcomeAndIsGoneAtTheNextTry();
};

void TestFaultsAtPresets::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::PresetEntry, Exchange::HubFile, Exchange::DeviceFile});
}

void TestFaultsAtPresets::everyFaultHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.4.1"));
}

TESSEL_TEST_MAIN(TestFaultsAtPresets)
#include "tst_faultsatpresets.moc"
