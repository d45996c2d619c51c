#include "fakecontroller.h"
#include "stepcontent.h"
#include "steppage.h"
#include "testcase.h"

#include <QPushButton>
#include <QTest>

namespace {

constexpr int number = 4;

/// Notes what its frame asks of it, and how often the wizard had gone on by then.
class NotingContent : public StepContent
{
public:
    explicit NotingContent(const FakeController* controller)
        : StepContent(nullptr, nullptr)
        , m_controller(controller)
    {
    }

    void load() override { note(QStringLiteral("load")); }
    void store() override { note(QStringLiteral("store")); }
    void reset() override { note(QStringLiteral("reset")); }

    QStringList calls;
    int nextsAtLastCall = 0;

private:
    void note(const QString& call)
    {
        calls.append(call);
        nextsAtLastCall = m_controller->nexts;
    }

    const FakeController* m_controller;
};

class Frame : public StepPage
{
public:
    using Left = LeftButton;

    Frame(NotingContent* content, LeftButton left, FakeController* controller)
        : StepPage(QStringLiteral("4. Step"), number, content, left, controller, nullptr, nullptr)
    {
    }
};

/// A step in its frame, as it is before it is first entered.
struct Step
{
    explicit Step(Frame::Left left = Frame::Left::Back)
        : content(new NotingContent(&controller))
        , page(content, left, &controller)
    {
        page.show();
    }

    QPushButton* button(const char* name) const
    {
        return page.findChild<QPushButton*>(QLatin1String(name));
    }

    void click(const char* name) const { QTest::mouseClick(button(name), Qt::LeftButton); }

    FakeController controller;
    NotingContent* content; ///< owned by the page
    Frame page;
};

} // namespace

class TestStepPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void arrivingFromAnEarlierStepLoads();
    void comingBackFromALaterStepKeepsWhatIsShown();
    void resumedWorkIsLoaded();
    void savingWorkStoresTheStep();
    void nextStoresBeforeTheWizardGoesOn();
    void backStoresNothing();
    void resetStoresNothing();
    void theFirstWorkingStepClosesInsteadOfGoingBack();
    void nextIsEnabledUntilTheContentSaysOtherwise();
};

void TestStepPage::arrivingFromAnEarlierStepLoads()
{
    Step step;
    step.page.enterFrom(number - 1);
    QCOMPARE(step.content->calls, QStringList{QStringLiteral("load")});
}

void TestStepPage::comingBackFromALaterStepKeepsWhatIsShown()
{
    Step step;
    step.page.enterFrom(number + 1);
    QVERIFY(step.content->calls.isEmpty());
}

void TestStepPage::resumedWorkIsLoaded()
{
    Step step;
    step.page.restoreFromDocument();
    QCOMPARE(step.content->calls, QStringList{QStringLiteral("load")});
}

void TestStepPage::savingWorkStoresTheStep()
{
    Step step;
    step.page.storeToDocument();
    QCOMPARE(step.content->calls, QStringList{QStringLiteral("store")});
}

void TestStepPage::nextStoresBeforeTheWizardGoesOn()
{
    const Step step;
    step.click("nextButton");
    QCOMPARE(step.content->calls, QStringList{QStringLiteral("store")});
    QCOMPARE(step.content->nextsAtLastCall, 0);
    QCOMPARE(step.controller.nexts, 1);
}

void TestStepPage::backStoresNothing()
{
    const Step step;
    step.click("backButton");
    QVERIFY(step.content->calls.isEmpty());
    QCOMPARE(step.controller.backs, 1);
}

void TestStepPage::resetStoresNothing()
{
    const Step step;
    step.click("resetButton");
    QCOMPARE(step.content->calls, QStringList{QStringLiteral("reset")});
}

void TestStepPage::theFirstWorkingStepClosesInsteadOfGoingBack()
{
    const Step step(Frame::Left::Close);
    QVERIFY(!step.button("backButton"));
    step.click("closeButton");
    QVERIFY(step.content->calls.isEmpty());
    QCOMPARE(step.controller.quits, 1);
}

void TestStepPage::nextIsEnabledUntilTheContentSaysOtherwise()
{
    const Step step;
    QVERIFY(step.button("nextButton")->isEnabled());
    Q_EMIT step.content->nextButtonEnabled(false);
    QVERIFY(!step.button("nextButton")->isEnabled());
    Q_EMIT step.content->nextButtonEnabled(true);
    QVERIFY(step.button("nextButton")->isEnabled());
}

TESSEL_TEST_MAIN(TestStepPage)
#include "tst_steppage.moc"
