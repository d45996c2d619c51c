#include "kepthall.h"

#include "newfile.h"
#include "sessionqueries.h"
#include "wizardpage.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QStandardPaths>

namespace {

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
           QStringLiteral("/Tessel");
}

/// No colons: not every system has them in the names of files.
QString fileName()
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")) +
           QStringLiteral(".tessel");
}

} // namespace

QString keepHall(IDocAccessor& doc, QSize windowSize)
{
    setPageIndex(doc, int(WizardPage::Install));
    setWindowSize(doc, windowSize);
    const QString path = folder() + QLatin1Char('/') + fileName();
    QString kept = QDir().mkpath(folder()) ? saveAsNewFile(doc, path) : QString();
    if (kept.isEmpty()) {
        qDebug().noquote() << "The hall could not be kept in" << path;
    }
    return kept;
}
