#pragma once

#include "heartbeat.h"

#include <QBasicTimer>
#include <QList>
#include <QObject>

#include <functional>

class QComboBox;
class QTreeWidget;
class QWidget;

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
    void planLayouts();
    void planSets();
    void planPositions();
    void planNames();
    void choose(QTreeWidget* tree, int row, int column, const QString& text);
    void planInstallation();
    void finish();

    bool answerDialog();
    QWidget* page() const;
    QTreeWidget* tree(const QString& name) const;
    void press(const QString& button);

    QBasicTimer m_ticks;
    Heartbeat m_heartbeat;
    QWidget* m_window = nullptr;
    int m_plannedPage = -1;
    bool m_acting = false;
    QList<Action> m_actions;
};
