#include "demoplayer.h"

#include <QCoreApplication>
#include <QGenericPlugin>

#include <cstdlib>

namespace {

/// The program's own exit code knows nothing of warnings.
void endAsPlayed()
{
    qInstallMessageHandler(nullptr);
    if (!wasPlayedWell()) {
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace

/// Brings the player of the demo into a wizard that knows nothing of it.
class PlayerPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "playerplugin.json")

public:
    QObject* create(const QString& /*name*/, const QString& /*arguments*/) override
    {
        watchWarnings();
        startPlaying();
        qAddPostRoutine(endAsPlayed);
        return new QObject;
    }
};

#include "playerplugin.moc"
