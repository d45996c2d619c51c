#include "stallplayer.h"

#include "finding.h"
#include "hands.h"
#include "samplelog.h"

#include <QApplication>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTextStream>
#include <QTreeWidget>

namespace {

constexpr int tickMs = 12;
constexpr int rooms = 4;
constexpr int roomSide = 4;
constexpr int devicesOfAKind = 8;

QList<QPoint> cellsOf(int room)
{
    const QPoint corner((room - 1) % 2 * roomSide, (room - 1) / 2 * roomSide);
    QList<QPoint> cells;
    for (int row = 0; row < roomSide; ++row) {
        for (int step = 0; step < roomSide; ++step) {
            const int column = row % 2 == 0 ? step : roomSide - 1 - step;
            cells.append(corner + QPoint(column, row));
        }
    }
    return cells;
}

} // namespace

StallPlayer::StallPlayer(QObject* parent)
    : QObject(parent)
    , m_heartbeat(this)
{
    m_dialogs.onDialog("loginDialog", [](QWidget* dialog) {
        Hands::typeInto(widgetOf(*dialog, "passwordEdit"), QStringLiteral("hall2026"));
        Hands::click(buttonOf(*dialog, "loginButton"));
    });
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
    if (!m_hands) {
        if (QWidget* window = wizardWindow()) {
            m_hands.emplace(window);
            // The start has figures of its own.
            QApplication::processEvents();
            m_heartbeat.start();
        }
    } else if (QApplication::activeModalWidget() == nullptr) {
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
    const int index = m_hands->pageNumber() - 1;
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
            press("nextButton");
        });
    }
}

void StallPlayer::planDrawing()
{
    for (int room = 1; room <= rooms; ++room) {
        plan([this, room] { m_hands->draw(cellsOf(room)); });
    }
}

void StallPlayer::planPlacing()
{
    const QTreeWidget* hubs = m_hands->table("hubTable");
    for (int row = 0; row < hubs->topLevelItemCount(); ++row) {
        planPlace(hubs->topLevelItem(row), row % rooms + 1);
    }
    const QTreeWidget* peripherals = m_hands->table("peripheralTable");
    for (const QString& kind : {QStringLiteral("Boundary"), QStringLiteral("Speaker")}) {
        const auto found = peripherals->findItems(kind, Qt::MatchStartsWith);
        for (int index = 0; index < devicesOfAKind; ++index) {
            planPlace(found.at(index), index % rooms + 1);
        }
    }
}

void StallPlayer::planPlace(QTreeWidgetItem* device, int room)
{
    plan([device] { Hands::reach(device); });
    plan([=, this] { m_hands->place(device, room); });
}

void StallPlayer::planLayouts()
{
    const auto add = [this] { press("addLayoutButton"); };
    plan(add);
    for (const int room : {1, 3, 1}) {
        plan([this, room] { m_hands->link(room, room + 1); });
        plan(add);
    }
}

void StallPlayer::planSets()
{
    for (int group = 1; group <= groups(); ++group) {
        plan([=, this] { m_hands->showGroup(group); });
        // A combined room keeps one of its hubs.
        plan([this] {
            const QTreeWidget* hubs = m_hands->table("hubTable");
            for (int row = 1; row < hubs->topLevelItemCount(); ++row) {
                m_hands->toggle(hubs->topLevelItem(row));
            }
        });
    }
}

void StallPlayer::planPositions()
{
    for (int group = 1; group <= groups(); ++group) {
        plan([=, this] { m_hands->showGroup(group); });
        plan([this] {
            m_hands->chooseSide(m_hands->table("speakerTable")->topLevelItem(0),
                                QStringLiteral("R"));
        });
    }
}

void StallPlayer::planNames()
{
    for (int group = 1; group <= groups(); ++group) {
        plan([=, this] { m_hands->namePreset(group, QStringLiteral("Hall")); });
    }
}

void StallPlayer::planInstallation()
{
    plan([this] {
        m_heartbeat.setActivity(QStringLiteral("the installation"));
        press("executeButton");
    });
    // Comes back for itself until every hub is done.
    plan([this] { press("executeButton"); });
}

void StallPlayer::finish()
{
    recordSample(QStringLiteral("stall/ours"), m_heartbeat.longestMs());
    QTextStream(stdout) << "Longest stall: " << m_heartbeat.longestMs() << " ms, "
                        << m_heartbeat.longestDuring() << Qt::endl;
    plan([this] { press("closeButton"); });
}

int StallPlayer::groups() const
{
    return m_hands->table("roomGroupList")->topLevelItemCount();
}

void StallPlayer::press(const char* button)
{
    if (!m_hands->press(button)) {
        // Not yet: tried again at the next tick.
        m_actions.prepend([this, button] { press(button); });
    }
}
