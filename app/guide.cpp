#include "guide.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace {

// Beside the program, as it is built and as Windows has it; then as other systems have it.
constexpr QLatin1String beside("guide");
constexpr QLatin1String shared("../share/tessel/guide");
#ifdef Q_OS_WIN
constexpr QLatin1String installed = beside;
#else
constexpr QLatin1String installed = shared;
#endif

QString cleanPath(const QString& programFolder, QLatin1String place)
{
    return QDir::cleanPath(programFolder + QLatin1Char('/') + place);
}

QString findFolder(const QString& programFolder)
{
    for (const QLatin1String place : {beside, shared}) {
        const QString folder = cleanPath(programFolder, place);
        if (QFileInfo(folder + QStringLiteral("/index.html")).isFile()) {
            return folder;
        }
    }
    return {};
}

} // namespace

Guide::Guide(const QString& programFolder)
    : m_programFolder(programFolder)
    , m_folder(findFolder(programFolder))
{
}

QString Guide::open(int step) const
{
    if (m_folder.isEmpty()) {
        const QString place = cleanPath(m_programFolder, installed);
        return tr("The guide is not installed; its place is %1.")
            .arg(QDir::toNativeSeparators(place));
    }
    const QString page = QStringLiteral("%1/step-%2.html").arg(m_folder, QString::number(step));
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(page))) {
        return {};
    }
    return tr("No browser opened the guide; this page of it is %1.")
        .arg(QDir::toNativeSeparators(page));
}
