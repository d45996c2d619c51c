// Plays the wizard against a running hall, or compares what the hall's hubs hold afterwards:
//
//   tessel-demo --part=1|2 --hall=FILE --pictures=FOLDER [the wizard's own arguments]
//   tessel-demo --check=FOLDER --hall=FILE
//
// The wizard is the one that the entry function builds: it ignores arguments it does not know, and
// the player is started by the application object, not by the wizard.

#include "demoplayer.h"
#include "entry.h"
#include "hubcheck.h"

#include <QApplication>
#include <QTextStream>

namespace {

void startWithApplication()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) {
        startPlaying();
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
    HubCheck check(*scenario, demoOption(QStringLiteral("check")));
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

Q_COREAPP_STARTUP_FUNCTION(startWithApplication)

int main(int argc, char** argv)
{
    if (isCheck(argc, argv)) {
        return checkHubs(argc, argv);
    }
    watchWarnings();
    const int result = runWizard(argc, argv);
    return wasPlayedWell() ? result : 1;
}
