#include "inputfile.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 maxTextSize = qint64(16) * 1024 * 1024;

} // namespace

QString readInputFile(const QString& path, QByteArray& text)
{
    if (QFileInfo(path).isDir()) {
        return QStringLiteral("this is a folder, not a file");
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    text = file.read(maxTextSize + 1);
    if (file.error() != QFileDevice::NoError) {
        return file.errorString();
    }
    if (text.isEmpty()) {
        return QStringLiteral("the file is empty");
    }
    return text.size() > maxTextSize
               ? QStringLiteral("it is larger than anything that is known of a hall")
               : QString();
}
