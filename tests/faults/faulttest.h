#pragma once

#include "faultface.h"
#include "testcase.h"

/// Base of the test of one face: a hub that goes wrong at one request, where every fault has its
/// outcome, and is gone at the next try. CTest runs each function as a test of its own, so that
/// they run side by side: each has addresses of its own.
class FaultTest : public TestCase
{
    Q_OBJECT

public:
    /// `network` is what the addresses of its halls begin with, such as "127.70".
    FaultTest(const QString& network, const FaultFaceMaker& makeFace);

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

private:
    void carryOut(int part) const;

    QString m_network;
    FaultFaceMaker m_makeFace;
};
