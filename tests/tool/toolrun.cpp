#include "toolrun.h"

#include <QProcess>

namespace {

constexpr int patience = 30000; // milliseconds

QProcessEnvironment withoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"}) {
        environment.remove(QLatin1String(name));
    }
    // A desktop's theme that wants a display.
    environment.insert(QStringLiteral("QT_QPA_PLATFORMTHEME"), QStringLiteral("gtk3"));
    return environment;
}

} // namespace

QString withoutWine(QString errors)
{
    return errors.remove(
        QStringLiteral("SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2) "
                       "failed: COM error 0x57  (Invalid parameter.)\n"));
}

ToolRun runBuiltTool(const QStringList& arguments, const QString& outputFile)
{
    QProcess program;
    program.setProcessEnvironment(withoutDisplay());
    program.setStandardOutputFile(outputFile);
    program.start(QStringLiteral(TESSEL_TOOL), arguments);
    if (!program.waitForFinished(patience) || program.exitStatus() != QProcess::NormalExit) {
        program.kill();
        program.waitForFinished();
        return {};
    }
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            withoutWine(QString::fromUtf8(program.readAllStandardError()))};
}

bool isOneLine(const QString& errors)
{
    return errors.startsWith(u"tesselctl: ") && errors.endsWith(u'\n') && errors.count(u'\n') == 1;
}
