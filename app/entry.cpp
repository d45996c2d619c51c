#include "entry.h"

#include "commandline.h"
#include "configurationfile.h"
#include "console.h"
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

} // namespace

int runWizard(int& argc, char** argv)
{
    // Destroyed from the bottom up: window, document, application.
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("tessel"));
    // Qt has taken its own ones out.
    tellIgnoredArguments();
    TesselDoc doc(nullptr);
    const QString path = configurationPath(QCoreApplication::arguments());
    ConfigurationFile file(&doc, path);
    MainWindow window(nullptr, &doc, path.isEmpty() ? nullptr : &file);
    window.show();
    return QApplication::exec();
}
