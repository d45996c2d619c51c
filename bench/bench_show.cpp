// What "tesselctl show" does with a hall of 250 devices and 10 layouts, beside reading its file.

#include "benchdocument.h"
#include "benchpair.h"
#include "benchrows.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "halltext.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QTemporaryDir>

#include <memory>

namespace {

constexpr HallSize size{4, 246, 10};

/// The file that both sides read.
struct HallOnDisk
{
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("hall.tessel"));

    HallOnDisk()
    {
        TesselDoc doc(nullptr);
        fillDocument(doc, size);
        if (!doc.saveResume(path)) {
            qFatal("There is no hall to show.");
        }
    }
};

} // namespace

void registerShow()
{
    const auto file = std::make_shared<HallOnDisk>();
    registerPair(
        QStringLiteral("show"), 30,
        [file](Stopwatch& watch) {
            watch.start();
            readHallFile(file->path);
            watch.stop();
        },
        [file](Stopwatch& watch) {
            watch.start();
            const HallReading reading = readHallFile(file->path);
            const QByteArray text = hallText(*reading.hall).toUtf8();
            const QStringList broken = brokenLimits(*reading.hall);
            watch.stop();
            if (text.isEmpty() || broken.isEmpty()) {
                qFatal("The hall is too large for its rooms, and this was not told.");
            }
        });
}
