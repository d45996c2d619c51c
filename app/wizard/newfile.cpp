#include "newfile.h"

#include "idocaccessor.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr int maxTries = 1000; // a folder that cannot be written to refuses every name

QString numbered(const QString& path, int number)
{
    const QFileInfo file(path);
    return number == 1 ? path
                       : QStringLiteral("%1/%2 (%3).%4")
                             .arg(file.path(), file.completeBaseName(), QString::number(number),
                                  file.suffix());
}

/// An empty file that was not there before; the path is empty when none can be made.
QString takeName(const QString& path)
{
    for (int number = 1; number <= maxTries; ++number) {
        QFile file(numbered(path, number));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            return file.fileName();
        }
        if (!file.exists()) {
            break;
        }
    }
    return {};
}

} // namespace

QString saveAsNewFile(IDocAccessor& doc, const QString& path)
{
    QString taken = takeName(path);
    if (taken.isEmpty() || doc.saveResume(taken)) {
        return taken;
    }
    QFile::remove(taken);
    return {};
}
