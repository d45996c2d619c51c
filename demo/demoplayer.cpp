#include "demoplayer.h"

#include "darkpalette.h"
#include "demodesk.h"
#include "demofirstrun.h"
#include "demosecondrun.h"
#include "hallreader.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QRegularExpression>
#include <QTextStream>
#include <QTimer>

namespace {

bool walkSucceeded = false;
int warnings = 0;

// What the platform without a display says of itself, and Wine of every window and of the icons
// that it has not got; Windows says none of it.
bool isOfPlatform(const QString& text)
{
    static const QRegularExpression lines(QRegularExpression::anchoredPattern(QStringLiteral(
        "This plugin does not support (propagateSizeHints\\(\\)|raise\\(\\)|grabbing the keyboard)"
        "|EnableNonClientDpiScaling\\(\\) failed for HWND 0x[0-9a-f]+ \\(120\\) "
        "\\(Call not implemented\\.\\)"
        "|QPixmap::fromWinHICON\\(\\), failed to GetIconInfo\\(\\) \\(Invalid cursor "
        "handle\\.\\)")));
    return lines.match(text).hasMatch();
}

// Prints what Qt has to complain about and counts it; the wizard gives it no reason to.
void watchMessages(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (isOfPlatform(text)) {
        return;
    }
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        ++warnings;
    }
    QTextStream(stderr) << qFormatLogMessage(type, context, text) << Qt::endl;
}

DemoDevice demoDevice(const DeviceDescription& device)
{
    return {device.address, device.mac, device.model, device.label, 0};
}

bool play(const DemoScenario& scenario)
{
    DemoDesk desk(demoOption(QStringLiteral("pictures")), nullptr);
    return demoOption(QStringLiteral("part")) == QLatin1String("2")
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

} // namespace

QString demoOption(const QString& name)
{
    const QString prefix = QStringLiteral("--%1=").arg(name);
    for (const QString& argument : QCoreApplication::arguments()) {
        if (argument.startsWith(prefix)) {
            return argument.sliced(prefix.size());
        }
    }
    return {};
}

std::optional<DemoScenario> readScenario()
{
    const HallReading hall = readHallFile(demoOption(QStringLiteral("hall")));
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

void watchWarnings()
{
    qInstallMessageHandler(watchMessages);
}

void startPlaying()
{
    QTimer::singleShot(0, walk);
}

bool wasPlayedWell()
{
    if (warnings > 0) {
        QTextStream(stdout) << "FAILED: " << warnings << " warnings, see above" << Qt::endl;
    }
    return walkSucceeded && warnings == 0;
}
