#include "testcase.h"
class TestPresetFileSenderPrompts : public TestCase
{
    Q_OBJECT
};
TESSEL_TEST_MAIN(TestPresetFileSenderPrompts)
#include "tst_presetfilesender_prompts.moc"
