#include "demosecondrun.h"

#include "demodesk.h"
#include "demoscenario.h"
#include "demouser.h"
#include "dialoganswerer.h"
#include "treerows.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

namespace {

constexpr int resumeWaitMs = 15000;
constexpr int installWaitMs = 120000;
constexpr int addressColumn = 3;
constexpr int removeColumn = 5;
constexpr int positionColumn = 5;
constexpr int nameColumn = 3;
constexpr int hubAddressColumn = 2;
constexpr int statusColumn = 3;

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
    m_desk.dialogs().onDialog(QStringLiteral("initialPasswordDialog"), [this](QWidget* dialog) {
        DemoUser::click(dialog->findChild<QWidget*>(QStringLiteral("passwordEdit")));
        DemoUser::type(dialog, QStringLiteral("hall2026"));
        DemoUser::pressKey(dialog, Qt::Key_Tab);
        DemoUser::type(dialog, QStringLiteral("hall2026"));
        m_desk.pictureOf(dialog, QStringLiteral("dialog-initial-password"));
        DemoUser::click(dialog->findChild<QWidget*>(QStringLiteral("submitButton")));
    });
    m_desk.dialogs().onDialog(QStringLiteral("loginDialog"), [this](QWidget* dialog) {
        // The first password is wrong once, to see the hub's refusal.
        const bool first = m_desk.dialogs().answered(QStringLiteral("loginDialog")) == 1;
        const bool refused = dialog->findChild<QWidget*>(QStringLiteral("errorLabel"))->isVisible();
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("passwordEdit"));
        DemoUser::click(edit);
        DemoUser::pressKey(dialog, Qt::Key_A, Qt::ControlModifier);
        DemoUser::type(dialog, first ? QStringLiteral("wrong") : QStringLiteral("hall2026"));
        m_desk.pictureOf(dialog, refused ? QStringLiteral("dialog-login-refused")
                                         : QStringLiteral("dialog-login"));
        DemoUser::pressKey(dialog, Qt::Key_Return);
    });
}

bool DemoSecondRun::resume()
{
    const auto resumed = [this] { return m_desk.isOnPage(5) && m_desk.window()->isEnabled(); };
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
    if (m_desk.window()->size() != DemoScenario::savedWindowSize) {
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
    QTreeWidget* list = m_desk.tree(QStringLiteral("roomGroupList"));
    if (list->topLevelItemCount() != m_scenario.groups().size()) {
        return m_desk.failed(
            QStringLiteral("%1 room combinations listed").arg(list->topLevelItemCount()));
    }
    DemoUser::clickRow(list, list->topLevelItem(group.number - 1));
    DemoDesk::letPaint();
    return true;
}

bool DemoSecondRun::chooseDevices()
{
    for (const DemoGroup& group : m_scenario.groups()) {
        if (!showGroup(group)) {
            return false;
        }
        for (const DemoDevice& device : m_scenario.devicesOf(group)) {
            QTreeWidget* table = m_desk.tableOf(device);
            QTreeWidgetItem* row = findRow(table, addressColumn, device.address);
            if (!row || row->text(0) != m_scenario.labelOf(device)) {
                return m_desk.failed(QStringLiteral("%1 is not offered as \"%2\" in combination %3")
                                         .arg(device.address, m_scenario.labelOf(device))
                                         .arg(group.number));
            }
            if (m_scenario.isRemoved(group, device)) {
                table->scrollToItem(row);
                DemoDesk::letPaint();
                DemoUser::click(table->itemWidget(row, removeColumn));
            }
        }
    }
    m_desk.picture(QStringLiteral("step-5"));
    return m_desk.press(QStringLiteral("nextButton")) && m_desk.isOnPage(6) &&
           m_desk.done(5, QStringLiteral("devices chosen for %1 room combinations")
                              .arg(m_scenario.groups().size()));
}

bool DemoSecondRun::choosePositions()
{
    for (const DemoGroup& group : m_scenario.groups()) {
        if (!showGroup(group)) {
            return false;
        }
        QTreeWidget* table = m_desk.tree(QStringLiteral("speakerTable"));
        for (const DemoDevice& device : m_scenario.devicesOf(group)) {
            if (!device.isSpeaker() || m_scenario.isRemoved(group, device)) {
                continue;
            }
            QTreeWidgetItem* row = findRow(table, addressColumn, device.address);
            if (!row) {
                return m_desk.failed(
                    QStringLiteral("speaker %1 is not listed").arg(device.address));
            }
            table->scrollToItem(row);
            DemoDesk::letPaint();
            auto* combo = qobject_cast<QComboBox*>(table->itemWidget(row, positionColumn));
            DemoUser::choose(combo, m_scenario.positionOf(device));
        }
    }
    m_desk.picture(QStringLiteral("step-6"));
    return m_desk.press(QStringLiteral("nextButton")) && m_desk.isOnPage(7) &&
           m_desk.done(6, QStringLiteral("speaker sides chosen"));
}

bool DemoSecondRun::namePresets()
{
    QTreeWidget* list = m_desk.tree(QStringLiteral("roomGroupList"));
    for (const DemoGroup& group : m_scenario.groups()) {
        QTreeWidgetItem* row = list->topLevelItem(group.number - 1);
        list->scrollToItem(row);
        DemoDesk::letPaint();
        auto* edit = qobject_cast<QLineEdit*>(list->itemWidget(row, nameColumn));
        DemoUser::click(edit);
        DemoUser::type(m_desk.window(), group.presetName);
        if (edit->text() != group.presetName) {
            return m_desk.failed(
                QStringLiteral("name %1 reads \"%2\"").arg(group.number).arg(edit->text()));
        }
    }
    m_desk.picture(QStringLiteral("step-7"));
    return m_desk.press(QStringLiteral("nextButton")) && m_desk.isOnPage(8) &&
           m_desk.done(7, QStringLiteral("%1 presets named").arg(m_scenario.groups().size()));
}

bool DemoSecondRun::install()
{
    QTreeWidget* list = m_desk.tree(QStringLiteral("hubList"));
    m_desk.picture(QStringLiteral("step-8-before"));
    m_desk.press(QStringLiteral("executeButton"));
    auto* button = m_desk.page()->findChild<QAbstractButton*>(QStringLiteral("executeButton"));
    const bool ended = QTest::qWaitFor([button] { return button->isEnabled(); }, installWaitMs);
    m_desk.picture(QStringLiteral("step-8"));
    bool allDone = ended;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* hub = list->topLevelItem(row);
        m_desk.say(QStringLiteral("  %1 (%2): %3")
                       .arg(hub->text(0), hub->text(hubAddressColumn), hub->text(statusColumn)));
        allDone = allDone && hub->text(statusColumn) == QLatin1String("Done");
    }
    if (!allDone || button->text() != QLatin1String("Next")) {
        return m_desk.failed(QStringLiteral("not every hub is done"));
    }
    return m_desk.press(QStringLiteral("executeButton")) && m_desk.isOnPage(9) &&
           m_desk.done(8, QStringLiteral("%1 layouts installed into %2 hubs")
                              .arg(m_scenario.layouts().size())
                              .arg(list->topLevelItemCount()));
}

bool DemoSecondRun::finish()
{
    m_desk.picture(QStringLiteral("step-9"));
    return m_desk.press(QStringLiteral("closeButton")) && m_desk.done(9, QStringLiteral("closed"));
}
