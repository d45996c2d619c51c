#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <optional>

class CurrentPresetSender;

/// One round with all hubs at once: makes each recall a preset, or none, and reads back which one
/// is active. Only what is read back counts; a hub that says nothing costs its wait and no more.
class PresetRound : public QObject
{
    Q_OBJECT

public:
    /// `waitMs` is how long each hub has for telling what is expected of it.
    PresetRound(const QStringList& addresses, int waitMs, QObject* parent);

    /// Reads the active preset of every hub.
    void read();

    /// Recalls a preset on the hubs that are named, and reads those back once they have had
    /// `settleMs` for it. A hub that is still on another preset is asked again until its time is
    /// over.
    void recall(const QHash<QString, int>& numbers, int settleMs);

    /// What was read last from a hub, 0 for no preset; nothing when it never answered.
    std::optional<int> preset(const QString& address) const;

public Q_SLOTS:
    /// Reads back now what was recalled, however much was left of its time to settle.
    void beginReading();

Q_SIGNALS:
    /// A hub has told which preset is active.
    void answered();
    /// Every hub has answered as expected, or its time is over.
    void finished();

private Q_SLOTS:
    void askPending();
    void note(const QString& ipAddress, int number);
    void finish();

private:
    void ask(const QString& address);

    QStringList m_addresses;
    int m_waitMs;
    QHash<QString, int> m_expected; ///< by address; not there when any number will do
    QSet<QString> m_pending;
    QHash<QString, CurrentPresetSender*> m_readers; ///< children; those who wait for an answer
    QHash<QString, int> m_presets;
    QTimer m_again;
    bool m_isReading = false;
    bool m_isOver = false;
};
