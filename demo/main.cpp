// Plays the wizard against a running hall, or compares what the hall's hubs hold afterwards:
//
//   tessel-demo --part=1|2 --hall=FILE --pictures=FOLDER [the wizard's own arguments]
//   tessel-demo --check=FOLDER --hall=FILE
//
// Where the environment says TESSEL_DARK, it plays in the colours of a dark desktop; where it says
// TESSEL_POINTS=16, with a font of 16 points.
//
// The wizard is the one that the entry function builds: it ignores arguments it does not know, and
// the player is started by the application object, not by the wizard.

#include "darkpalette.h"
#include "demodesk.h"
#include "demofirstrun.h"
#include "demoscenario.h"
#include "demosecondrun.h"
#include "entry.h"
#include "hallreader.h"
#include "hubcheck.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QTextStream>
#include <QTimer>

#include <optional>

namespace {

bool walkSucceeded = false;
int warnings = 0;

// Prints what Qt has to complain about and counts it; the wizard gives it no reason to.
void watchMessages(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // The platform without a display says these of itself.
    static const QStringList exempt{QStringLiteral("propagateSizeHints()"),
                                    QStringLiteral("raise()"),
                                    QStringLiteral("grabbing the keyboard")};
    const QString own = QStringLiteral("This plugin does not support ");
    if (text.startsWith(own) && exempt.contains(text.sliced(own.size()))) {
        return;
    }
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        ++warnings;
    }
    QTextStream(stderr) << qFormatLogMessage(type, context, text) << Qt::endl;
}

QString option(const QString& name)
{
    const QString prefix = QStringLiteral("--%1=").arg(name);
    for (const QString& argument : QCoreApplication::arguments()) {
        if (argument.startsWith(prefix)) {
            return argument.sliced(prefix.size());
        }
    }
    return {};
}

DemoDevice demoDevice(const DeviceDescription& device)
{
    return {device.address, device.mac, device.model, device.label, 0};
}

std::optional<DemoScenario> readScenario()
{
    const HallReading hall = readHallFile(option(QStringLiteral("hall")));
    if (!hall.hall) {
        QTextStream(stderr) << "tessel-demo: " << hall.error << Qt::endl;
        return std::nullopt;
    }
    QList<DemoDevice> devices;
    for (const HubDescription& hub : hall.hall->hubs) {
        devices.append(demoDevice(hub));
    }
    for (const DeviceDescription& peripheral : hall.hall->peripherals) {
        devices.append(demoDevice(peripheral));
    }
    return DemoScenario(devices);
}

bool play(const DemoScenario& scenario)
{
    DemoDesk desk(option(QStringLiteral("pictures")), nullptr);
    return option(QStringLiteral("part")) == QLatin1String("2")
               ? DemoSecondRun(desk, scenario).play()
               : DemoFirstRun(desk, scenario).play();
}

void walk()
{
    if (qEnvironmentVariableIsSet("TESSEL_DARK")) {
        QApplication::setPalette(darkPalette());
    }
    if (const int points = qEnvironmentVariableIntValue("TESSEL_POINTS"); points > 0) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    const std::optional<DemoScenario> scenario = readScenario();
    walkSucceeded = scenario && play(*scenario);
    if (!walkSucceeded) {
        QCoreApplication::exit(1);
    }
}

void startWalk()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) {
        QTimer::singleShot(0, walk);
    }
}

int checkHubs(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const std::optional<DemoScenario> scenario = readScenario();
    if (!scenario) {
        return 1;
    }
    QTextStream out(stdout);
    int result = 0;
    HubCheck check(*scenario, option(QStringLiteral("check")));
    for (const DemoDevice& device : scenario->devices()) {
        if (!device.isHub()) {
            continue;
        }
        const QStringList differences = check.differences(device);
        out << scenario->labelOf(device) << " (" << device.address << "): "
            << (differences.isEmpty() ? QStringLiteral("holds exactly what was entered")
                                      : QStringLiteral("%1 differences").arg(differences.size()))
            << Qt::endl;
        for (const QString& difference : differences) {
            out << "  " << difference << Qt::endl;
            result = 1;
        }
    }
    return result;
}

bool isCheck(int argc, char** argv)
{
    return argc > 1 && QByteArrayView(argv[1]).startsWith("--check=");
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startWalk)

int main(int argc, char** argv)
{
    if (isCheck(argc, argv)) {
        return checkHubs(argc, argv);
    }
    qInstallMessageHandler(watchMessages);
    const int result = runWizard(argc, argv);
    if (warnings > 0) {
        QTextStream(stdout) << "FAILED: " << warnings << " warnings, see above" << Qt::endl;
    }
    return walkSucceeded && warnings == 0 ? result : 1;
}
