#include "entry.h"

#include "mainwindow.h"
#include "tesseldoc.h"

#include <QApplication>

int runWizard(int& argc, char** argv)
{
    // Destroyed from the bottom up: window, document, application.
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("tessel"));
    TesselDoc doc(nullptr);
    MainWindow window(nullptr, &doc);
    window.show();
    return QApplication::exec();
}
