#include "demosecondrun.h"

#include "demodesk.h"
#include "demoscenario.h"
#include "dialoganswerer.h"
#include "finding.h"
#include "hands.h"

#include <QDeadlineTimer>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace {

constexpr int resumeWaitMs = 15000;
constexpr int installWaitMs = 120000;

} // namespace

DemoSecondRun::DemoSecondRun(DemoDesk& desk, const DemoScenario& scenario)
    : m_desk(desk)
    , m_scenario(scenario)
{
    answerDialogs();
}

bool DemoSecondRun::play()
{
    return m_desk.waitForWindow() && resume() && chooseDevices() && choosePositions() &&
           namePresets() && install() && finish();
}

void DemoSecondRun::answerDialogs()
{
    m_desk.answerInterfaceDialog();
    m_desk.dialogs().onDialog("initialPasswordDialog", [this](QWidget* dialog) {
        Hands::typeInto(widgetOf(*dialog, "passwordEdit"), QStringLiteral("hall2026"));
        Hands::pressKey(dialog, Qt::Key_Tab);
        Hands::type(dialog, QStringLiteral("hall2026"));
        m_desk.pictureOf(dialog, QStringLiteral("dialog-initial-password"));
        Hands::click(widgetOf(*dialog, "submitButton"));
    });
    m_desk.dialogs().onDialog("loginDialog", [this](QWidget* dialog) {
        // The hubs ask in any order: the first one's password is wrong once, and what is pictured
        // is its refusal and the second one's dialog.
        const QString hub = columnTexts(*tableOf(*dialog, "hubList"), "Hostname").first();
        const bool isFirst = hub == m_scenario.labelOf(m_scenario.devices().at(0));
        const bool isSecond = hub == m_scenario.labelOf(m_scenario.devices().at(1));
        const bool refused = widgetOf(*dialog, "errorLabel")->isVisible();
        Hands::typeInto(widgetOf(*dialog, "passwordEdit"),
                        isFirst && !refused ? QStringLiteral("wrong") : QStringLiteral("hall2026"));
        if (refused || isSecond) {
            m_desk.pictureOf(dialog, refused ? QStringLiteral("dialog-login-refused")
                                             : QStringLiteral("dialog-login"));
        }
        Hands::pressKey(dialog, Qt::Key_Return);
    });
}

bool DemoSecondRun::resume()
{
    const auto resumed = [this] {
        return m_desk.hands().pageNumber() == 5 && m_desk.window()->isEnabled();
    };
    QDeadlineTimer patience(resumeWaitMs);
    bool waited = false;
    while (!resumed() && !patience.hasExpired()) {
        auto* wait = m_desk.window()->findChild<QWidget*>(QStringLiteral("resumeDialog"));
        if (wait && wait->isVisible() && !waited) {
            waited = true;
            m_desk.pictureOf(wait, QStringLiteral("dialog-please-wait"));
        }
        QTest::qWait(50);
    }
    if (!resumed()) {
        return m_desk.failed(QStringLiteral("the saved work did not come back"));
    }
    if (m_desk.window()->size() != m_desk.sizeOnScreen(DemoScenario::savedWindowSize)) {
        return m_desk.failed(QStringLiteral("the window came back in another size"));
    }
    // As a window manager does when the dialog in front of a window is gone.
    m_desk.window()->activateWindow();
    m_desk.say(QStringLiteral("  started again on step 5%1")
                   .arg(waited ? QStringLiteral(" after \"Please wait...\"") : QString()));
    return true;
}

bool DemoSecondRun::showGroup(const DemoGroup& group)
{
    const int listed = m_desk.hands().table("roomGroupList")->topLevelItemCount();
    if (listed != m_scenario.groups().size()) {
        return m_desk.failed(QStringLiteral("%1 room combinations listed").arg(listed));
    }
    m_desk.hands().showGroup(group.number);
    return true;
}

bool DemoSecondRun::chooseDevices()
{
    for (const DemoGroup& group : m_scenario.groups()) {
        if (!showGroup(group)) {
            return false;
        }
        for (const DemoDevice& device : m_scenario.devicesOf(group)) {
            QTreeWidgetItem* row = m_desk.hands().device(device.address);
            if (!row || textIn(*row, "Hostname") != m_scenario.labelOf(device)) {
                return m_desk.failed(QStringLiteral("%1 is not offered as \"%2\" in combination %3")
                                         .arg(device.address, m_scenario.labelOf(device))
                                         .arg(group.number));
            }
            if (m_scenario.isRemoved(group, device)) {
                m_desk.hands().toggle(row);
            }
        }
    }
    m_desk.picture(QStringLiteral("step-5"));
    return m_desk.goOnTo(6) &&
           m_desk.done(5, QStringLiteral("devices chosen for %1 room combinations")
                              .arg(m_scenario.groups().size()));
}

bool DemoSecondRun::choosePositions()
{
    for (const DemoGroup& group : m_scenario.groups()) {
        if (!showGroup(group)) {
            return false;
        }
        for (const DemoDevice& device : m_scenario.devicesOf(group)) {
            if (!device.isSpeaker() || m_scenario.isRemoved(group, device)) {
                continue;
            }
            QTreeWidgetItem* row = m_desk.hands().device(device.address);
            if (!row) {
                return m_desk.failed(
                    QStringLiteral("speaker %1 is not listed").arg(device.address));
            }
            m_desk.hands().chooseSide(row, m_scenario.positionOf(device));
        }
    }
    m_desk.picture(QStringLiteral("step-6"));
    return m_desk.goOnTo(7) && m_desk.done(6, QStringLiteral("speaker sides chosen"));
}

bool DemoSecondRun::namePresets()
{
    for (const DemoGroup& group : m_scenario.groups()) {
        const QString reads = m_desk.hands().namePreset(group.number, group.presetName);
        if (reads != group.presetName) {
            return m_desk.failed(
                QStringLiteral("name %1 reads \"%2\"").arg(group.number).arg(reads));
        }
    }
    m_desk.picture(QStringLiteral("step-7"));
    return m_desk.goOnTo(8) &&
           m_desk.done(7, QStringLiteral("%1 presets named").arg(m_scenario.groups().size()));
}

bool DemoSecondRun::install()
{
    const QTreeWidget* list = m_desk.hands().table("hubList");
    m_desk.picture(QStringLiteral("step-8-before"));
    m_desk.press("executeButton");
    const QPushButton* button = m_desk.hands().button("executeButton");
    const bool ended = QTest::qWaitFor([button] { return button->isEnabled(); }, installWaitMs);
    m_desk.picture(QStringLiteral("step-8"));
    bool allDone = ended;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem& hub = *list->topLevelItem(row);
        const QString status = textIn(hub, "Status");
        m_desk.say(QStringLiteral("  %1 (%2): %3")
                       .arg(textIn(hub, "Hostname"), textIn(hub, "IP Address"), status));
        allDone = allDone && status == QLatin1String("Done");
    }
    if (!allDone || button->text() != QLatin1String("Next")) {
        return m_desk.failed(QStringLiteral("not every hub is done"));
    }
    return m_desk.press("executeButton") && m_desk.hands().pageNumber() == 9 &&
           m_desk.done(8, QStringLiteral("%1 layouts installed into %2 hubs")
                              .arg(m_scenario.layouts().size())
                              .arg(list->topLevelItemCount()));
}

bool DemoSecondRun::finish()
{
    m_desk.picture(QStringLiteral("step-9"));
    return m_desk.press("closeButton") && m_desk.done(9, QStringLiteral("closed"));
}
