// Every preset file of 10 layouts for 4 hubs with 24 peripherals each, as the installation asks the
// document for them, beside the same files from plain lists.

#include "barefiles.h"
#include "benchpair.h"
#include "benchrows.h"
#include "presetqueries.h"
#include "stopwatch.h"
#include "tesseldoc.h"

namespace {

constexpr HallSize size{4, 96, 10};

QList<QByteArray> bareFiles(const HallRecords& hall)
{
    QList<QByteArray> files;
    for (int hub = 0; hub < size.hubs; ++hub) {
        for (int layout = 1; layout <= size.layouts; ++layout) {
            files.append(BareFiles::hubFile(hall, benchAddress(hub), layout).toUtf8());
            for (const QString& address : BareFiles::peripherals(hall, benchAddress(hub), layout)) {
                files.append(BareFiles::peripheralFile(*hall.deviceAt.find(address)).toUtf8());
            }
        }
    }
    return files;
}

QList<QByteArray> allFiles(IDocAccessor& doc)
{
    QList<QByteArray> files;
    for (int hub = 0; hub < size.hubs; ++hub) {
        for (int layout = 1; layout <= size.layouts; ++layout) {
            files.append(hubPresetFile(doc, benchAddress(hub), layout).value());
            const auto addresses = peripheralsOfHub(doc, benchAddress(hub), layout);
            for (const QString& address : addresses.value()) {
                files.append(peripheralPresetFile(doc, address)->content);
            }
        }
    }
    return files;
}

} // namespace

void registerPresetFiles()
{
    const auto doc = std::make_shared<TesselDoc>(nullptr);
    fillDocument(*doc, size);
    const HallRecords hall = hallRecords(size);
    if (bareFiles(hall) != allFiles(*doc)) {
        qFatal("The two sides write different preset files.");
    }
    registerPair(
        QStringLiteral("presetfiles"), 40,
        [hall](Stopwatch& watch) {
            watch.start();
            const QList<QByteArray> files = bareFiles(hall);
            watch.stop();
        },
        [doc](Stopwatch& watch) {
            watch.start();
            const QList<QByteArray> files = allFiles(*doc);
            watch.stop();
        });
}
