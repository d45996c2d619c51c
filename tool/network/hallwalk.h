#pragma once

#include "presetround.h"

#include <QList>
#include <QMap>

/// A walk through the layouts of a hall: recalls each on all hubs, reads it back, and at the end
/// recalls what was active before.
class HallWalk : public QObject
{
    Q_OBJECT

public:
    /// What was read back from each hub that answered, by address.
    using Reading = QHash<QString, int>;

    HallWalk(const QStringList& hubs, const QList<int>& layouts, int settleMs, int waitMs,
             QObject* parent = nullptr);

    /// Reads what is active, and begins.
    void start();

    /// Which preset was active before; a hub that is missing did not tell.
    const Reading& before() const { return m_before; }

    /// What was read back after the recall of a layout; nothing for one that was not reached.
    std::optional<Reading> read(int layout) const;

    /// What was read back after the preset from before was recalled, of those that told it.
    const Reading& restored() const { return m_restored; }

    /// True when a layout was recalled; without that every hub is as it was before. No layout is
    /// when no hub told its preset.
    bool hasRecalled() const { return m_stage != Stage::Before; }

    /// True when stop() ended it before the last layout.
    bool isStopped() const { return m_isStopped; }

public Q_SLOTS:
    /// Recalls what was active before, without the layouts that are left; before the first one
    /// it just finishes. One that hubs may still be loading is read back first: until it is there
    /// they tell the preset before, which would pass for restored.
    void stop();

Q_SIGNALS:
    /// A layout has been recalled and read back.
    void walked(int layout);
    /// Everything has been read back.
    void finished();

private Q_SLOTS:
    void takeBefore();
    void takeLayout();
    void takeRestored();

private:
    enum class Stage
    {
        Before,
        Layouts,
        Restoring
    };

    void goOn();
    void restore();
    PresetRound* newRound(const char* slot);
    Reading reading() const;

    QStringList m_hubs;
    QList<int> m_layouts; ///< those that are left
    int m_settleMs;
    int m_waitMs;
    PresetRound* m_round = nullptr; ///< child; the one under way
    Stage m_stage = Stage::Before;
    int m_layout = 0;
    Reading m_before;
    QMap<int, Reading> m_read;
    Reading m_restored;
    bool m_isStopped = false;
};
