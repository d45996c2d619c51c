#include "faulttest.h"
#include "pagefaultface.h"

/// Every fault of every request through the page that installs.
class TestRequestFaults : public FaultTest
{
    Q_OBJECT

public:
    TestRequestFaults()
        : FaultTest(QStringLiteral("127.70"), makePageFace)
    {
    }
};

TESSEL_TEST_MAIN(TestRequestFaults)
#include "tst_requestfaults.moc"
