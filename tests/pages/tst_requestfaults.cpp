// Every request of an installation with every fault that its reply can have. CTest runs each
// function as a test of its own, so that they run side by side: each has addresses of its own.
#include "faultrow.h"
#include "pagefaultface.h"
#include "testcase.h"

#include <QTest>

/// A hub that goes wrong at one request: every fault has its outcome, and is gone at the next try.
class TestRequestFaults : public TestCase
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

void TestRequestFaults::everyFaultBeforeLogInHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::Status, Exchange::Token});
}

void TestRequestFaults::everyFaultBeforeLogInHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.1.1"), makePageFace);
}

void TestRequestFaults::everyFaultAtLogInHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::SetPassword, Exchange::LogIn});
}

void TestRequestFaults::everyFaultAtLogInHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.2.1"), makePageFace);
}

void TestRequestFaults::everyFaultAtExportHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::StartExport, Exchange::ReadExport});
}

void TestRequestFaults::everyFaultAtExportHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.3.1"), makePageFace);
}

void TestRequestFaults::everyFaultAtPresetsHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::PresetEntry, Exchange::HubFile, Exchange::DeviceFile});
}

void TestRequestFaults::everyFaultAtPresetsHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.4.1"), makePageFace);
}

void TestRequestFaults::everyFaultAtTheEndHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::Recall, Exchange::Invalidate});
}

void TestRequestFaults::everyFaultAtTheEndHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOutFaultRow(QStringLiteral("127.70.5.1"), makePageFace);
}

TESSEL_TEST_MAIN(TestRequestFaults)
#include "tst_requestfaults.moc"
