#include "entry.h"

#include "commandline.h"
#include "configurationfile.h"
#include "console.h"
#include "exchangelog.h"
#include "httpconnection.h"
#include "mainwindow.h"
#include "tesseldoc.h"

#include <QApplication>

namespace {

void tellIgnoredArguments()
{
    for (const QString& argument : ignoredArguments(QCoreApplication::arguments())) {
        writeToErrors(QStringLiteral("tessel: argument ignored: %1\n").arg(argument));
    }
}

/// Begins the log of requests, when one is asked for.
void startLog(ExchangeLog& log, const QString& path)
{
    if (path.isEmpty()) {
        return;
    }
    if (log.open()) {
        HttpConnection::writeTo(&log);
    } else {
        writeToErrors(
            QStringLiteral("tessel: cannot write the log %1: %2\n").arg(path, log.error()));
    }
}

} // namespace

int runWizard(int& argc, char** argv)
{
#ifdef Q_OS_WIN
    // The system's own style paints selections and buttons in colours of its own, on which the
    // window's could not always be read.
    QApplication::setStyle(QStringLiteral("Fusion"));
#endif
    // Destroyed from the bottom up: window, document, log, application.
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("tessel"));
    // Qt has taken its own ones out.
    tellIgnoredArguments();
    const QString logFile = logPath(QCoreApplication::arguments());
    ExchangeLog log(logFile);
    startLog(log, logFile);
    TesselDoc doc(nullptr);
    const QString path = configurationPath(QCoreApplication::arguments());
    ConfigurationFile file(&doc, path);
    MainWindow window(nullptr, &doc, path.isEmpty() ? nullptr : &file);
    window.show();
    const int code = QApplication::exec();
    HttpConnection::writeTo(nullptr);
    if (!log.isWhole()) {
        writeToErrors(QStringLiteral("tessel: %1 is not complete: %2\n").arg(logFile, log.error()));
    }
    return code;
}
