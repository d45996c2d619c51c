#include "journal.h"

const JournalEntry& Journal::add(const JournalEntry& entry)
{
    m_entries.append(entry);
    m_entries.last().number = static_cast<int>(m_entries.size());
    return m_entries.last();
}

QStringList Journal::names() const
{
    QStringList names;
    for (const JournalEntry& entry : m_entries) {
        names.append(entry.name);
    }
    return names;
}

QStringList Journal::differences() const
{
    QStringList lines;
    for (const JournalEntry& entry : m_entries) {
        lines += reportLines(entry);
    }
    return lines;
}

void Journal::clear()
{
    m_entries.clear();
}

QStringList reportLines(const JournalEntry& entry)
{
    QStringList lines;
    for (const QString& difference : entry.differences) {
        lines.append(QStringLiteral("request %1 (%2): %3")
                         .arg(QString::number(entry.number), entry.name, difference));
    }
    return lines;
}
