#pragma once

class DemoDesk;
class DemoScenario;
class QTreeWidgetItem;
struct DemoDevice;

/// The first run of the wizard: from the empty grid to the layouts, then saved and closed on the
/// way.
class DemoFirstRun
{
public:
    DemoFirstRun(DemoDesk& desk, const DemoScenario& scenario);

    /// Plays it. False when anything was not as it should be; a line has said what.
    bool play();

private:
    void answerDialogs();
    bool introduction();
    bool drawRooms();
    bool findDevices();
    bool placeDevices();
    bool renameDevice(QTreeWidgetItem* row, const DemoDevice& device);
    bool makeLayouts();
    bool linkByMenu(int room, int other);
    bool saveAndClose();

    DemoDesk& m_desk;
    const DemoScenario& m_scenario;
};
