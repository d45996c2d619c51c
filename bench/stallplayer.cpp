#include "stallplayer.h"

#include "demouser.h"
#include "samplelog.h"
#include "treerows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTextStream>
#include <QTreeWidget>

namespace {

constexpr int tickMs = 12;
constexpr int rooms = 4;
constexpr int roomSide = 4;
constexpr int cellPitch = 50;
constexpr QPoint cellMiddle(26, 26);
constexpr int devicesOfAKind = 8;
constexpr int roomColumn = 4;
constexpr int widgetColumn = 5;
constexpr int nameColumn = 3;

QWidget* wizardWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("MainWindow") && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

QList<QPoint> strokeOver(int room)
{
    const QPoint corner((room - 1) % 2 * roomSide, (room - 1) / 2 * roomSide);
    QList<QPoint> path;
    for (int row = 0; row < roomSide; ++row) {
        for (int step = 0; step < roomSide; ++step) {
            const int column = row % 2 == 0 ? step : roomSide - 1 - step;
            path.append((corner + QPoint(column, row)) * cellPitch + cellMiddle);
        }
    }
    return path;
}

} // namespace

StallPlayer::StallPlayer(QObject* parent)
    : QObject(parent)
    , m_heartbeat(this)
{
}

void StallPlayer::start()
{
    m_ticks.start(tickMs, this);
}

void StallPlayer::timerEvent(QTimerEvent* /*event*/)
{
    if (m_acting) {
        return;
    }
    const QScopedValueRollback acting(m_acting, true);
    if (m_window == nullptr) {
        m_window = wizardWindow();
        if (m_window != nullptr) {
            // The start has figures of its own.
            QApplication::processEvents();
            m_heartbeat.start();
        }
    } else if (!answerDialog()) {
        if (m_actions.isEmpty()) {
            planPage();
        } else {
            m_actions.takeFirst()();
        }
    }
}

void StallPlayer::planPage()
{
    using Plan = void (StallPlayer::*)();
    static constexpr std::array<Plan, 9> plans = {
        nullptr,
        &StallPlayer::planDrawing,
        &StallPlayer::planPlacing,
        &StallPlayer::planLayouts,
        &StallPlayer::planSets,
        &StallPlayer::planPositions,
        &StallPlayer::planNames,
        &StallPlayer::planInstallation,
        &StallPlayer::finish,
    };
    const auto* stack = m_window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
    const int index = stack->currentIndex();
    if (index == m_plannedPage) {
        return;
    }
    m_plannedPage = index;
    m_heartbeat.setActivity(QStringLiteral("step %1").arg(index + 1));
    if (const Plan own = plans.at(size_t(index))) {
        (this->*own)();
    }
    if (index < 7) {
        plan([this, index] {
            m_heartbeat.setActivity(QStringLiteral("going to step %1").arg(index + 2));
            press(QStringLiteral("nextButton"));
        });
    }
}

void StallPlayer::planDrawing()
{
    for (int room = 1; room <= rooms; ++room) {
        plan([this, room] {
            DemoUser::drag(page()->findChild<QWidget*>(QStringLiteral("roomEditor")),
                           strokeOver(room));
        });
    }
}

void StallPlayer::planPlacing()
{
    QTreeWidget* hubs = tree(QStringLiteral("hubTable"));
    for (int row = 0; row < hubs->topLevelItemCount(); ++row) {
        choose(hubs, row, roomColumn, QString::number(row % rooms + 1));
    }
    QTreeWidget* peripherals = tree(QStringLiteral("peripheralTable"));
    for (const QString& kind : {QStringLiteral("Boundary"), QStringLiteral("Speaker")}) {
        const auto found = peripherals->findItems(kind, Qt::MatchStartsWith);
        for (int index = 0; index < devicesOfAKind; ++index) {
            choose(peripherals, peripherals->indexOfTopLevelItem(found.at(index)), roomColumn,
                   QString::number(index % rooms + 1));
        }
    }
}

void StallPlayer::choose(QTreeWidget* tree, int row, int column, const QString& text)
{
    plan([=] { tree->scrollToItem(tree->topLevelItem(row)); });
    plan([=] {
        auto* widget = tree->itemWidget(tree->topLevelItem(row), column);
        DemoUser::choose(qobject_cast<QComboBox*>(widget), text);
    });
}

void StallPlayer::planLayouts()
{
    const QStringList links{{},
                            QStringLiteral("Link room 1 and room 2"),
                            QStringLiteral("Link room 3 and room 4"),
                            QStringLiteral("Link room 1 and room 2")};
    for (const QString& link : links) {
        plan([this, link] {
            if (!link.isEmpty()) {
                DemoUser::click(findByAccessibleName(page(), link));
            }
        });
        plan([this] { press(QStringLiteral("addLayoutButton")); });
    }
}

void StallPlayer::planSets()
{
    QTreeWidget* groups = tree(QStringLiteral("roomGroupList"));
    for (int group = 0; group < groups->topLevelItemCount(); ++group) {
        plan([=] { DemoUser::clickRow(groups, groups->topLevelItem(group)); });
        // A combined room keeps one of its hubs.
        plan([this] {
            QTreeWidget* hubs = tree(QStringLiteral("hubTable"));
            for (int row = 1; row < hubs->topLevelItemCount(); ++row) {
                DemoUser::click(hubs->itemWidget(hubs->topLevelItem(row), widgetColumn));
            }
        });
    }
}

void StallPlayer::planPositions()
{
    QTreeWidget* groups = tree(QStringLiteral("roomGroupList"));
    for (int group = 0; group < groups->topLevelItemCount(); ++group) {
        plan([=] { DemoUser::clickRow(groups, groups->topLevelItem(group)); });
        plan([this] {
            QTreeWidget* speakers = tree(QStringLiteral("speakerTable"));
            auto* widget = speakers->itemWidget(speakers->topLevelItem(0), widgetColumn);
            DemoUser::choose(qobject_cast<QComboBox*>(widget), QStringLiteral("R"));
        });
    }
}

void StallPlayer::planNames()
{
    QTreeWidget* groups = tree(QStringLiteral("roomGroupList"));
    for (int group = 0; group < groups->topLevelItemCount(); ++group) {
        plan([=] { groups->scrollToItem(groups->topLevelItem(group)); });
        plan([=, this] {
            DemoUser::click(groups->itemWidget(groups->topLevelItem(group), nameColumn));
            DemoUser::type(m_window, QStringLiteral("Hall"));
        });
    }
}

void StallPlayer::planInstallation()
{
    plan([this] {
        m_heartbeat.setActivity(QStringLiteral("the installation"));
        press(QStringLiteral("executeButton"));
    });
    // Comes back for itself until every hub is done.
    plan([this] { press(QStringLiteral("executeButton")); });
}

void StallPlayer::finish()
{
    recordSample(QStringLiteral("stall/ours"), m_heartbeat.longestMs());
    QTextStream(stdout) << "Longest stall: " << m_heartbeat.longestMs() << " ms, "
                        << m_heartbeat.longestDuring() << Qt::endl;
    plan([this] { press(QStringLiteral("closeButton")); });
}

bool StallPlayer::answerDialog()
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) {
        return false;
    }
    auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("passwordEdit"));
    if (edit != nullptr && dialog->isVisible()) {
        edit->setText(QStringLiteral("hall2026"));
        dialog->findChild<QAbstractButton*>(QStringLiteral("loginButton"))->click();
    }
    return true;
}

QWidget* StallPlayer::page() const
{
    return m_window->findChild<QStackedWidget*>(QStringLiteral("pageStack"))->currentWidget();
}

QTreeWidget* StallPlayer::tree(const QString& name) const
{
    for (auto* found : page()->findChildren<QTreeWidget*>(name)) {
        if (found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

void StallPlayer::press(const QString& name)
{
    auto* button = page()->findChild<QAbstractButton*>(name);
    if (button != nullptr && button->isEnabled()) {
        DemoUser::click(button);
    } else {
        // Not yet: tried again at the next tick.
        m_actions.prepend([this, name] { press(name); });
    }
}
