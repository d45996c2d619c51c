#include "testcase.h"
class TestPresetFileSender : public TestCase
{
    Q_OBJECT
};
TESSEL_TEST_MAIN(TestPresetFileSender)
#include "tst_presetfilesender.moc"
