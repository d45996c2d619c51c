#include "faulttest.h"

#include "faultrow.h"

FaultTest::FaultTest(const QString& network, const FaultFaceMaker& makeFace)
    : m_network(network)
    , m_makeFace(makeFace)
{
}

void FaultTest::carryOut(int part) const
{
    carryOutFaultRow(QStringLiteral("%1.%2.1").arg(m_network, QString::number(part)), m_makeFace);
}

void FaultTest::everyFaultBeforeLogInHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::Status, Exchange::Token});
}

void FaultTest::everyFaultBeforeLogInHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOut(1);
}

void FaultTest::everyFaultAtLogInHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::SetPassword, Exchange::LogIn});
}

void FaultTest::everyFaultAtLogInHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOut(2);
}

void FaultTest::everyFaultAtExportHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::StartExport, Exchange::ReadExport});
}

void FaultTest::everyFaultAtExportHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOut(3);
}

void FaultTest::everyFaultAtPresetsHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::PresetEntry, Exchange::HubFile, Exchange::DeviceFile});
}

void FaultTest::everyFaultAtPresetsHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOut(4);
}

void FaultTest::everyFaultAtTheEndHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    addFaultRows({Exchange::Recall, Exchange::Invalidate});
}

void FaultTest::everyFaultAtTheEndHasItsOutcomeAndIsGoneAtTheNextTry()
{
    carryOut(5);
}
