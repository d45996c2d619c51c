#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One message that a device received. Holds no secrets.
struct JournalEntry
{
    /// Counted from 1 for each device.
    int number = 0;
    /// The name of the exchange.
    QString name = {};
    /// The request line's target, or the text command.
    QString text = {};
    /// In what the message differed from the prescribed form.
    QStringList differences = {};
};

/// All that a device received, in order.
class Journal
{
public:
    /// Adds an entry and gives it its number.
    const JournalEntry& add(const JournalEntry& entry);
    /// Everything received so far.
    const QList<JournalEntry>& entries() const { return m_entries; }
    /// The names of the exchanges received so far.
    QStringList names() const;
    /// Every difference, each with the number and the name of its message.
    QStringList differences() const;
    /// Forgets everything and counts from 1 again.
    void clear();

private:
    QList<JournalEntry> m_entries;
};

/// The differences of one entry as they stand in reports: "request 6 (recall): body: ...".
QStringList reportLines(const JournalEntry& entry);
