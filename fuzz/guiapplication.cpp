#include "guiapplication.h"

#include <QGuiApplication>

void provideGuiApplication()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(argc, argv);
}
