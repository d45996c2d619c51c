#include "demofirstrun.h"

#include "demodesk.h"
#include "demoscenario.h"
#include "dialoganswerer.h"
#include "finding.h"
#include "hands.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDeadlineTimer>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>

namespace {

constexpr int discoveryWaitMs = 20000;

} // namespace

DemoFirstRun::DemoFirstRun(DemoDesk& desk, const DemoScenario& scenario)
    : m_desk(desk)
    , m_scenario(scenario)
{
    answerDialogs();
}

bool DemoFirstRun::play()
{
    return m_desk.waitForWindow() && introduction() && drawRooms() && findDevices() &&
           placeDevices() && makeLayouts() && saveAndClose();
}

void DemoFirstRun::answerDialogs()
{
    m_desk.answerInterfaceDialog();
    m_desk.dialogs().onDialog("Confirmation", [this](QWidget* dialog) {
        m_desk.pictureOf(dialog, QStringLiteral("dialog-confirmation"));
        Hands::pressKey(dialog, Qt::Key_Return);
    });
    m_desk.dialogs().onDialog("Save Information?", [this](QWidget* dialog) {
        m_desk.pictureOf(dialog, QStringLiteral("dialog-save"));
        Hands::pressKey(dialog, Qt::Key_Y, Qt::AltModifier);
    });
}

bool DemoFirstRun::introduction()
{
    m_desk.picture(QStringLiteral("step-1"));
    return m_desk.goOnTo(2) && m_desk.done(1, QStringLiteral("introduction read"));
}

bool DemoFirstRun::drawRooms()
{
    for (int room = 1; room <= 4; ++room) {
        m_desk.hands().draw(m_scenario.cellsOfRoom(room));
    }
    m_desk.picture(QStringLiteral("step-2"));
    return m_desk.goOnTo(3) && m_desk.done(2, QStringLiteral("4 rooms drawn"));
}

bool DemoFirstRun::findDevices()
{
    const int expected = int(m_scenario.devices().size());
    const auto listed = [this] {
        return m_desk.hands().table("hubTable")->topLevelItemCount() +
               m_desk.hands().table("peripheralTable")->topLevelItemCount();
    };
    // Devices found since are listed when the page is entered again.
    QDeadlineTimer patience(discoveryWaitMs);
    while (listed() < expected && !patience.hasExpired()) {
        m_desk.press("backButton");
        m_desk.press("nextButton");
        QTest::qWait(200);
    }
    if (listed() != expected) {
        return m_desk.failed(QStringLiteral("%1 of %2 devices found").arg(listed()).arg(expected));
    }
    m_desk.say(QStringLiteral("  %1 devices found").arg(expected));
    return true;
}

bool DemoFirstRun::placeDevices()
{
    for (const DemoDevice& device : m_scenario.devices()) {
        QTreeWidgetItem* row = m_desk.hands().device(device.address);
        if (!row) {
            return m_desk.failed(QStringLiteral("%1 is not listed").arg(device.address));
        }
        m_desk.hands().place(row, device.room);
        if (textIn(*row, "Room") != QString::number(device.room)) {
            return m_desk.failed(
                QStringLiteral("%1 is not in room %2").arg(device.address).arg(device.room));
        }
        if (m_scenario.renames().contains(device.address) && !renameDevice(row, device)) {
            return false;
        }
    }
    m_desk.picture(QStringLiteral("step-3"));
    return m_desk.goOnTo(4) && m_desk.done(3, QStringLiteral("every device placed, two renamed"));
}

bool DemoFirstRun::renameDevice(QTreeWidgetItem* row, const DemoDevice& device)
{
    const QString label = m_scenario.labelOf(device);
    m_desk.dialogs().onDialog("Change Name", [this, label](QWidget* dialog) {
        Hands::typeInto(widgetOf(*dialog, "nameEdit"), label);
        m_desk.pictureOf(dialog, QStringLiteral("dialog-name"));
        Hands::click(widgetOf(*dialog, "okButton"));
    });
    Hands::doubleClick(row, "Hostname");
    return textIn(*row, "Hostname") == label ||
           m_desk.failed(QStringLiteral("%1 kept its name").arg(device.address));
}

bool DemoFirstRun::makeLayouts()
{
    for (const DemoLayout& layout : m_scenario.layouts()) {
        for (const auto& [room, other] : layout.linkBoxes) {
            m_desk.hands().link(room, other);
        }
        for (const auto& [room, other] : layout.menuLinks) {
            if (!linkByMenu(room, other)) {
                return false;
            }
        }
        m_desk.press("addLayoutButton");
    }
    // Once more what is listed already: a notice comes up, and the list stays as it is.
    m_desk.press("addLayoutButton");
    if (m_desk.dialogs().answered("Confirmation") != 1) {
        return m_desk.failed(QStringLiteral("the same layout was added twice"));
    }
    const int listed = m_desk.hands().table("layoutList")->topLevelItemCount();
    if (listed != m_scenario.layouts().size()) {
        return m_desk.failed(QStringLiteral("%1 layouts listed").arg(listed));
    }
    m_desk.picture(QStringLiteral("step-4"));
    return m_desk.goOnTo(5) && m_desk.done(4, QStringLiteral("%1 layouts made").arg(listed));
}

bool DemoFirstRun::linkByMenu(int room, int other)
{
    QWidget* picker = widgetOf(*m_desk.hands().page(), "tessel");
    // Room 1 lies in the upper left corner; a right click anywhere in it opens its menu.
    const QPoint corner(20, 20);
    Hands::click(picker, corner); // which scrolls there
    QTest::mouseClick(picker->window()->windowHandle(), Qt::RightButton, Qt::NoModifier,
                      picker->mapTo(picker->window(), corner));
    QContextMenuEvent request(QContextMenuEvent::Mouse, corner, picker->mapToGlobal(corner));
    if (!QApplication::activePopupWidget()) {
        QCoreApplication::sendEvent(picker, &request);
    }
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) {
        return m_desk.failed(QStringLiteral("room %1 shows no menu").arg(room));
    }
    DemoDesk::letPaint();
    m_desk.pictureOf(menu, QStringLiteral("menu-room"));
    const QString text = QStringLiteral("Room %1 + %2").arg(room).arg(other);
    for (QAction* action : menu->actions()) {
        if (action->text() == text) {
            Hands::click(menu, menu->actionGeometry(action).center());
            return true;
        }
    }
    return m_desk.failed(QStringLiteral("no entry \"%1\"").arg(text));
}

bool DemoFirstRun::saveAndClose()
{
    m_desk.picture(QStringLiteral("step-5-before-closing"));
    m_desk.window()->resize(m_desk.sizeOnScreen(DemoScenario::savedWindowSize));
    DemoDesk::letPaint();
    if (!m_desk.window()->close()) {
        return m_desk.failed(QStringLiteral("the window stayed open"));
    }
    if (m_desk.dialogs().answered("Save Information?") != 1) {
        return m_desk.failed(QStringLiteral("closing did not ask"));
    }
    m_desk.say(QStringLiteral("  saved and closed on step 5"));
    return true;
}
