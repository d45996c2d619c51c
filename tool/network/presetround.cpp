#include "presetround.h"

#include "presetcommandsenders.h"

namespace {

// A hub that is still loading a preset tells the one before.
constexpr int askAgainMs = 500;

} // namespace

PresetRound::PresetRound(const QStringList& addresses, int waitMs, QObject* parent)
    : QObject(parent)
    , m_addresses(addresses)
    , m_waitMs(waitMs)
{
    m_again.setInterval(askAgainMs);
    connect(&m_again, SIGNAL(timeout()), this, SLOT(askPending()));
}

void PresetRound::read()
{
    m_pending = QSet<QString>(m_addresses.begin(), m_addresses.end());
    beginReading();
}

void PresetRound::recall(const QHash<QString, int>& numbers, int settleMs)
{
    m_expected = numbers;
    for (auto each = numbers.begin(); each != numbers.end(); ++each) {
        m_pending.insert(each.key());
        auto* const sender = new PresetRecallSender(QHostAddress(each.key()), each.value(), this);
        connect(sender, SIGNAL(notifyPresetRecall(int)), this, SLOT(askPending()));
        sender->start();
    }
    QTimer::singleShot(settleMs, this, SLOT(beginReading()));
}

std::optional<int> PresetRound::preset(const QString& address) const
{
    const auto found = m_presets.find(address);
    return found != m_presets.end() ? std::optional(*found) : std::nullopt;
}

void PresetRound::beginReading()
{
    if (m_isReading) {
        return;
    }
    m_isReading = true;
    m_again.start();
    QTimer::singleShot(m_waitMs, this, SLOT(finish()));
    askPending();
    if (m_pending.isEmpty()) {
        finish();
    }
}

void PresetRound::askPending()
{
    if (!m_isReading) {
        return;
    }
    for (const QString& address : std::as_const(m_pending)) {
        ask(address);
    }
}

void PresetRound::note(const QString& /*ipAddress*/, int number)
{
    // The address as it was given: that of a file may be written in another way.
    auto* const reader = qobject_cast<CurrentPresetSender*>(sender());
    const QString address = m_readers.key(reader);
    reader->disconnect(this);
    reader->deleteLater();
    m_readers.remove(address);
    m_presets.insert(address, number);
    Q_EMIT answered();
    if (m_expected.value(address, number) == number) {
        m_pending.remove(address);
    }
    if (m_pending.isEmpty()) {
        finish();
    }
}

void PresetRound::finish()
{
    if (m_isOver) {
        return;
    }
    m_isOver = true;
    m_again.stop();
    Q_EMIT finished();
}

void PresetRound::ask(const QString& address)
{
    CurrentPresetSender*& reader = m_readers[address];
    if (reader == nullptr) {
        reader = new CurrentPresetSender(QHostAddress(address), this);
        connect(reader, SIGNAL(notifyCurrentPreset(QString, int)), this, SLOT(note(QString, int)));
    }
    // Asks only where no question is on its way: a hub may be slower than this asks.
    reader->start();
}
