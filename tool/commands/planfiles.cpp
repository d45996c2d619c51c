#include "planfiles.h"

#include "installplan.h"
#include "outputfile.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// Texts out of a configuration file name no folder of their own.
QString fileName(QString text)
{
    for (QChar& letter : text) {
        const bool isPlain = letter.isLetterOrNumber() || letter == u'.' || letter == u'-';
        letter = isPlain ? letter : QChar(u'_');
    }
    return text.isEmpty() || text.startsWith(u'.') ? u'_' + text : text;
}

QString writeFile(const QString& path, const QByteArray& bytes)
{
    const QString folder = QFileInfo(path).path();
    return QDir().mkpath(folder) ? writeWholeFile(path, bytes)
                                 : folder + QStringLiteral(": this folder cannot be made");
}

} // namespace

QString bodyFile(const QString& hubAddress, const PlannedRequest& request)
{
    const QString hub = fileName(hubAddress) + u'/';
    const QString preset = hub + QStringLiteral("preset-%1/").arg(request.place.presetNumber);
    switch (request.place.step) {
    case InstallStep::PresetEntry:
        return preset + QStringLiteral("entry.json");
    case InstallStep::HubFile:
        return preset + QStringLiteral("hub.xml");
    case InstallStep::PeripheralFile:
        return preset + fileName(request.storageName) + QStringLiteral(".xml");
    default:
        return hub + QStringLiteral("recall.json");
    }
}

bool isFree(const QString& folder)
{
    return QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System |
                                QDir::NoDotAndDotDot);
}

QString writeBodies(const QString& folder, const QString& hubAddress, const InstallPlan& plan)
{
    for (const PlannedRequest& request : plan.requests) {
        const QString fault =
            writeFile(folder + u'/' + bodyFile(hubAddress, request), request.body);
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return {};
}
