#include "hall.h"
#include "hallconsole.h"
#include "halloptions.h"
#include "hallstore.h"
#include "standardstreams.h"
#include "stopsignals.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {

/// How the program ends, for scripts that start it.
enum ExitCode
{
    Clean = 0,
    BadOptions = 1,
    CannotStart = 2,
    DifferencesFound = 3
};

int complain(const QString& text, ExitCode code)
{
    QTextStream(stderr) << "tessel-hall: " << text << '\n';
    return code;
}

int runHall(const HallOptions& options, QTextStream& out)
{
    Hall hall(options.hall);
    HallStore store(hall, options.storeFolder);
    HallConsole console(hall, out);
    const StopSignals signals_;
    QString error;
    QObject::connect(&store, SIGNAL(failed(QString, QString)), &console,
                     SLOT(showEvent(QString, QString)));
    QObject::connect(&signals_, SIGNAL(stopAsked()), QCoreApplication::instance(), SLOT(quit()));
    if (!hall.start(&error) || (!options.storeFolder.isEmpty() && !store.start(&error))) {
        return complain(error, CannotStart);
    }
    console.showHall();
    QCoreApplication::exec();
    hall.stop();
    console.showSummary();
    return hall.differences().isEmpty() ? Clean : DifferencesFound;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const StandardStreams streams;
    QTextStream out(stdout);
    const HallOptionsReading reading = readHallOptions(QCoreApplication::arguments());
    if (!reading.help.isEmpty()) {
        out << reading.help;
        return Clean;
    }
    if (!reading.options) {
        return complain(reading.error, BadOptions);
    }
    return runHall(*reading.options, out);
}
