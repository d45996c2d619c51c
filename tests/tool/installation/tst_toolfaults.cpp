#include "faulttest.h"
#include "toolfaultface.h"

/// The same faults through the tool, whose installation has no page.
class TestToolFaults : public FaultTest
{
    Q_OBJECT

public:
    TestToolFaults()
        : FaultTest(QStringLiteral("127.71"), makeToolFace)
    {
    }
};

TESSEL_TEST_MAIN(TestToolFaults)
#include "tst_toolfaults.moc"
