#include "toolapplication.h"

#include <QGuiApplication>

namespace {

// An application refers to its arguments as long as it lives.
char programName[] = "tesselctl";
char platformOption[] = "-platform";
// What paints without a display. On Windows it knows no fonts, and there is always a desktop.
#ifdef Q_OS_WIN
char platformName[] = "windows";
#else
char platformName[] = "offscreen";
#endif

} // namespace

std::unique_ptr<QCoreApplication> makeToolApplication(bool needsPictures)
{
    if (!needsPictures) {
        static int argc = 1;
        static char* argv[] = {programName, nullptr};
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    // The theme of a desktop may insist on a display, and has nothing to say to pictures.
    qunsetenv("QT_QPA_PLATFORMTHEME");
    static int argc = 3;
    static char* argv[] = {programName, platformOption, platformName, nullptr};
    return std::make_unique<QGuiApplication>(argc, argv);
}
