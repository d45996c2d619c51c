#pragma once

class DemoDesk;
class DemoScenario;
struct DemoGroup;

/// The second run of the wizard: resumes the saved work and goes on to the last page.
class DemoSecondRun
{
public:
    DemoSecondRun(DemoDesk& desk, const DemoScenario& scenario);

    /// Plays it. False when anything was not as it should be; a line has said what.
    bool play();

private:
    void answerDialogs();
    bool resume();
    bool showGroup(const DemoGroup& group);
    bool chooseDevices();
    bool choosePositions();
    bool namePresets();
    bool install();
    bool finish();

    DemoDesk& m_desk;
    const DemoScenario& m_scenario;
};
