#pragma once

#include "testcase.h"

/// The wizard's end of the broadcast tests, run inside a network of its own. Each test needs the
/// hall's end set up for it under the same name.
class BroadcastWizard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theQueryIsTheExactFortyOneBytes();
    void aTakenPortSendsNoQuery();
    void twoHundredAndFiftyDevicesAnsweringAtOnceAreAllFound();
    void hubsAreReportedOncePerSerialNumber();
    void malformedRepliesAreDroppedAmongGoodOnes();
    void aDeviceThatRefusesItsIdentityIsNotReported();
    void askingTwiceReportsNobodyTwice();
    void anInterfaceThatVanishesFindsNothingMore();
    void aSimulatedHallIsFoundWhole();
};
