#include "wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

/// In the system's words, which are a part of a sentence here; Windows ends its own with a stop.
QString reasonOf(const QFile& file)
{
    const QString words = file.errorString();
    return words.endsWith(u'.') ? words.chopped(1) : words;
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString& path, qint64 maxSize, QString& fault)
{
    fault.clear();
    QFile file(path);
    QByteArray bytes;
    if (QFileInfo(path).isDir()) {
        fault = QCoreApplication::translate("WholeFile", "this is a folder, not a file");
    } else if (file.open(QIODevice::ReadOnly)) {
        bytes = file.read(maxSize + 1);
    }
    if (fault.isEmpty() && file.error() != QFileDevice::NoError) {
        fault = reasonOf(file);
    } else if (bytes.size() > maxSize) {
        fault = QCoreApplication::translate("WholeFile",
                                            "it is larger than any configuration of a hall");
    }
    return fault.isEmpty() ? std::optional(bytes) : std::nullopt;
}
