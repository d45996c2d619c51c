#pragma once

#include "dialoganswerer.h"
#include "heartbeat.h"
#include "wizardhands.h"

#include <QBasicTimer>
#include <QList>
#include <QObject>

#include <functional>
#include <optional>

class QTreeWidgetItem;

/// Plays the nine steps on the wizard's window, one action of the user per tick, while a heartbeat
/// listens for stalls. Every page waits for the one before: actions are planned page by page.
class StallPlayer : public QObject
{
    Q_OBJECT

public:
    explicit StallPlayer(QObject* parent);

    void start();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    using Action = std::function<void()>;

    void plan(const Action& action) { m_actions.append(action); }
    void planPage();
    void planDrawing();
    void planPlacing();
    void planPlace(QTreeWidgetItem* device, int room);
    void planLayouts();
    void planSets();
    void planPositions();
    void planNames();
    void planInstallation();
    void finish();

    int groups() const;
    void press(const char* button);

    QBasicTimer m_ticks;
    Heartbeat m_heartbeat;
    DialogAnswerer m_dialogs;
    std::optional<WizardHands> m_hands;
    int m_plannedPage = -1;
    bool m_acting = false;
    QList<Action> m_actions;
};
