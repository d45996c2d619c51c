#pragma once

#include <QByteArray>
#include <QList>

/// The memory of this program as it is at one moment, as a core file would hold it: whatever can be
/// written, and so everything that the program has been told or has worked out.
///
/// Texts to look for are handed over masked, each byte XOR `mask`, so that whoever looks for one
/// does not have it in memory itself.
class MemorySnapshot
{
    Q_DISABLE_COPY_MOVE(MemorySnapshot)

public:
    static constexpr char mask = 0x5A;

    /// Takes the picture: a copy of the program that stands still until this object goes.
    MemorySnapshot();
    ~MemorySnapshot();

    /// False where the system has no such copies, or lets nobody look into them.
    bool isTaken() const { return !m_regions.isEmpty(); }

    /// For each place of the text the bytes that stand before it, at most 64.
    QList<QByteArray> placesOf(const QByteArray& masked) const;

    /// The masked text with a zero behind each byte, as QString keeps it.
    static QByteArray wide(const QByteArray& masked);

private:
    struct Region
    {
        qint64 begin;
        qint64 end;
    };

    void readRegions();

    qint64 m_copy = -1;
    QList<Region> m_regions;
};
