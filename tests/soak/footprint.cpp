#include "footprint.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QWidget>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

void addWithChildren(QSet<QObject*>& objects, QObject* root)
{
    const auto children = root->findChildren<QObject*>();
    objects.insert(root);
    objects.unite(QSet<QObject*>(children.begin(), children.end()));
}

QSet<QObject*> allObjects(const QObject& root)
{
    QSet<QObject*> objects;
    addWithChildren(objects, const_cast<QObject*>(&root));
    addWithChildren(objects, QCoreApplication::instance());
    for (QWidget* widget : QApplication::allWidgets()) {
        addWithChildren(objects, widget);
    }
    return objects;
}

qint64 timersOf(const QSet<QObject*>& objects)
{
    const auto* dispatcher = QAbstractEventDispatcher::instance();
    qint64 timers = 0;
    for (QObject* object : objects) {
        timers += dispatcher->registeredTimers(object).size();
    }
    return timers;
}

qint64 openFiles()
{
    const QDir folder(QStringLiteral("/proc/self/fd"));
    return folder.exists() ? folder.entryList(QDir::Files | QDir::System).size() : -1;
}

// A checker of addresses has a heap of its own and holds back what the program has freed.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
qint64 residentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.simplified().split(' ').at(1).toLongLong();
            }
        }
    }
    return -1;
}

void measureMemory(Footprint& footprint)
{
    constexpr qint64 bytesPerKiB = 1024;
    malloc_trim(0);
    footprint.heapKiB = qint64(mallinfo2().uordblks) / bytesPerKiB;
    footprint.residentKiB = residentKiB();
}
#else
void measureMemory(Footprint& /*footprint*/) {}
#endif

} // namespace

QString Footprint::text() const
{
    return QStringLiteral("heap %1 KiB, resident %2 KiB, files %3, objects %4, timers %5")
        .arg(heapKiB)
        .arg(residentKiB)
        .arg(files)
        .arg(objects)
        .arg(timers);
}

Footprint measureFootprint(const QObject& root)
{
    Footprint footprint;
    const QSet<QObject*> objects = allObjects(root);
    footprint.objects = objects.size();
    footprint.timers = timersOf(objects);
    footprint.files = openFiles();
    measureMemory(footprint);
    return footprint;
}
