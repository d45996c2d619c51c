#include "memorysnapshot.h"

#include <QFile>

#include <algorithm>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

constexpr qsizetype bytesBefore = 64;

} // namespace

MemorySnapshot::MemorySnapshot()
{
#ifdef Q_OS_LINUX
    m_copy = fork();
    if (m_copy == 0) {
        for (;;) {
            pause();
        }
    }
    readRegions();
#endif
}

MemorySnapshot::~MemorySnapshot()
{
#ifdef Q_OS_LINUX
    if (m_copy > 0) {
        kill(pid_t(m_copy), SIGKILL);
        waitpid(pid_t(m_copy), nullptr, 0);
    }
#endif
}

void MemorySnapshot::readRegions()
{
    QFile maps(QStringLiteral("/proc/%1/maps").arg(m_copy));
    if (!maps.open(QIODevice::ReadOnly)) {
        return;
    }
    for (const QByteArray& line : maps.readAll().split('\n')) {
        const QByteArrayList columns = line.split(' ');
        const QByteArrayList ends = columns.first().split('-');
        if (columns.size() > 1 && columns.at(1).startsWith("rw")) {
            m_regions.append(
                {ends.first().toLongLong(nullptr, 16), ends.last().toLongLong(nullptr, 16)});
        }
    }
}

QList<QByteArray> MemorySnapshot::placesOf(const QByteArray& masked) const
{
    QList<QByteArray> places;
    QFile memory(QStringLiteral("/proc/%1/mem").arg(m_copy));
    if (!memory.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return places;
    }
    const auto isSame = [](char inMemory, char inText) { return char(inMemory ^ mask) == inText; };
    for (const Region& region : m_regions) {
        memory.seek(region.begin);
        const QByteArray bytes = memory.read(region.end - region.begin);
        const auto find = [&](auto from) {
            return std::search(from, bytes.cend(), masked.cbegin(), masked.cend(), isSame);
        };
        for (auto at = find(bytes.cbegin()); at != bytes.cend(); at = find(at + 1)) {
            const qsizetype before = std::min<qsizetype>(bytesBefore, at - bytes.cbegin());
            places.append(QByteArray(at - before, before));
        }
    }
    return places;
}

QByteArray MemorySnapshot::wide(const QByteArray& masked)
{
    QByteArray bytes;
    for (const char byte : masked) {
        bytes.append(byte).append(mask);
    }
    return bytes;
}
