// Whole installations on the hubs of a running hall, from "Execute" to the last "Done", one hub and
// four hubs by turns:
//
//   bench_install [the wizard's own arguments, naming the devices of the hall]
//
// Records the time of both by the clock on the wall: most of it is waiting for the exports. Of the
// four also how long the event loop was held up at worst.

#include "countdown.h"
#include "deviceclass.h"
#include "devicequeries.h"
#include "heartbeat.h"
#include "install.h"
#include "installdesk.h"
#include "layoutqueries.h"
#include "presetqueries.h"
#include "samplelog.h"
#include "setqueries.h"
#include "tesseldoc.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include <cstdlib>

namespace {

constexpr int turns = 5;
constexpr int rooms = 4;
constexpr int layouts = 10;
constexpr int peripheralsPerRoom = 16;

// So many hubs, each in a room of its own with its peripherals.
void placeDevices(IDocAccessor& doc, int hubs)
{
    int hub = 0;
    int peripheral = 0;
    for (int index = 0; index < deviceCount(doc); ++index) {
        const DeviceEntry device = deviceAt(doc, index).value();
        if (isHub(device.modelName)) {
            setDeviceRoom(doc, device.ipAddress, ++hub <= hubs ? hub : 0);
        } else if (peripheral < hubs * peripheralsPerRoom) {
            setDeviceRoom(doc, device.ipAddress, peripheral / peripheralsPerRoom + 1);
            ++peripheral;
        }
    }
}

void addLayouts(IDocAccessor& doc)
{
    for (int layout = 1; layout <= layouts; ++layout) {
        addLayout(doc, {layout, QStringLiteral("1/2/3/4"), QPixmap()});
        for (int room = 1; room <= rooms; ++room) {
            const int set = (layout - 1) * rooms + room;
            addPreset(doc, set, layout, QStringLiteral("Layout %1").arg(layout));
            for (const DeviceEntry& device : devicesInRoom(doc, room)) {
                addToDeviceSet(doc, set, layout, device.ipAddress, false);
            }
        }
    }
}

void installOn(int hubs, const QString& series, Heartbeat& heartbeat)
{
    TesselDoc doc(nullptr);
    placeDevices(doc, hubs);
    addLayouts(doc);
    Install page(&doc);
    page.load();
    page.show();
    QApplication::processEvents();
    InstallDesk desk;
    Countdown countdown(hubs);
    QObject::connect(&page, SIGNAL(statusChanged()), &countdown, SLOT(done()));
    desk.answerDialogs();
    heartbeat.start();
    QElapsedTimer timer;
    timer.start();
    page.install();
    countdown.wait();
    if (!page.isDone()) {
        qFatal("A hub was not installed.");
    }
    recordSample(series, double(timer.nsecsElapsed()) / 1e6);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    for (int turn = 0; turn < turns; ++turn) {
        Heartbeat one;
        Heartbeat four;
        installOn(1, QStringLiteral("install/floor"), one);
        installOn(rooms, QStringLiteral("install/ours"), four);
        recordSample(QStringLiteral("stallinstalling/ours"), four.longestMs());
        QTextStream(stdout) << "Longest stall of four: " << four.longestMs() << " ms" << Qt::endl;
    }
    return EXIT_SUCCESS;
}
