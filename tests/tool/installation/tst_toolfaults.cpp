// Every request of an installation with every fault that its reply can have. CTest runs each
// function as a test of its own, so that they run side by side: each has addresses of its own.
#include "faultrow.h"
#include "testcase.h"
#include "toolfaultface.h"

#include <QTest>

/// The same through the tool, whose installation has no page: every fault has its outcome, and is
/// gone at the next try.
class TestToolFaults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFaultBeforeLogInHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultBeforeLogInHasItsOutcomeAndIsGoneAtTheNextTry();
    void everyFaultAtLogInHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultAtLogInHasItsOutcomeAndIsGoneAtTheNextTry();
    void everyFaultAtExportHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultAtExportHasItsOutcomeAndIsGoneAtTheNextTry();
    void everyFaultAtPresetsHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultAtPresetsHasItsOutcomeAndIsGoneAtTheNextTry();
    void everyFaultAtTheEndHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyFaultAtTheEndHasItsOutcomeAndIsGoneAtTheNextTry();
};

void TestToolFaults::everyFaultBeforeLogInHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::Status, Exchange::Token});
}

void TestToolFaults::everyFaultBeforeLogInHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.71.1.1"), makeToolFace);
}

void TestToolFaults::everyFaultAtLogInHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::SetPassword, Exchange::LogIn});
}

void TestToolFaults::everyFaultAtLogInHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.71.2.1"), makeToolFace);
}

void TestToolFaults::everyFaultAtExportHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::StartExport, Exchange::ReadExport});
}

void TestToolFaults::everyFaultAtExportHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.71.3.1"), makeToolFace);
}

void TestToolFaults::everyFaultAtPresetsHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::PresetEntry, Exchange::HubFile, Exchange::DeviceFile});
}

void TestToolFaults::everyFaultAtPresetsHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.71.4.1"), makeToolFace);
}

void TestToolFaults::everyFaultAtTheEndHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::Recall, Exchange::Invalidate});
}

void TestToolFaults::everyFaultAtTheEndHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.71.5.1"), makeToolFace);
}

TESSEL_TEST_MAIN(TestToolFaults)
#include "tst_toolfaults.moc"
