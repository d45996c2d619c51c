#include "hallwalk.h"

HallWalk::HallWalk(const QStringList& hubs, const QList<int>& layouts, int settleMs, int waitMs,
                   QObject* parent)
    : QObject(parent)
    , m_hubs(hubs)
    , m_layouts(layouts)
    , m_settleMs(settleMs)
    , m_waitMs(waitMs)
{
}

void HallWalk::start()
{
    newRound(SLOT(takeBefore()))->read();
}

std::optional<HallWalk::Reading> HallWalk::read(int layout) const
{
    const auto found = m_read.find(layout);
    return found != m_read.end() ? std::optional(*found) : std::nullopt;
}

void HallWalk::stop()
{
    if (m_stage == Stage::Restoring) {
        return;
    }
    m_isStopped = true;
    m_layouts.clear();
    if (m_stage == Stage::Before) {
        m_round->disconnect(this);
        takeBefore();
    } else {
        m_round->beginReading();
    }
}

void HallWalk::takeBefore()
{
    m_before = reading();
    if (m_isStopped || m_before.isEmpty()) {
        Q_EMIT finished();
        return;
    }
    m_stage = Stage::Layouts;
    goOn();
}

void HallWalk::takeLayout()
{
    m_read.insert(m_layout, reading());
    Q_EMIT walked(m_layout);
    goOn();
}

void HallWalk::takeRestored()
{
    m_restored = reading();
    Q_EMIT finished();
}

void HallWalk::goOn()
{
    if (m_layouts.isEmpty()) {
        restore();
        return;
    }
    m_layout = m_layouts.takeFirst();
    Reading numbers;
    for (const QString& hub : m_hubs) {
        numbers.insert(hub, m_layout);
    }
    newRound(SLOT(takeLayout()))->recall(numbers, m_settleMs);
}

void HallWalk::restore()
{
    m_stage = Stage::Restoring;
    Reading numbers = m_before;
    // 0 is no preset: there is nothing that could be recalled.
    numbers.removeIf([](const auto& each) { return each.value() == 0; });
    newRound(SLOT(takeRestored()))->recall(numbers, numbers.isEmpty() ? 0 : m_settleMs);
}

PresetRound* HallWalk::newRound(const char* slot)
{
    if (m_round != nullptr) {
        m_round->disconnect(this);
        m_round->deleteLater();
    }
    m_round = new PresetRound(m_hubs, m_waitMs, this);
    connect(m_round, SIGNAL(finished()), this, slot);
    return m_round;
}

HallWalk::Reading HallWalk::reading() const
{
    Reading reading;
    for (const QString& hub : m_hubs) {
        if (const std::optional<int> number = m_round->preset(hub)) {
            reading.insert(hub, *number);
        }
    }
    return reading;
}
