#include "wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

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
        fault = file.errorString();
    } else if (bytes.size() > maxSize) {
        fault = QCoreApplication::translate("WholeFile",
                                            "it is larger than any configuration of a hall");
    }
    return fault.isEmpty() ? std::optional(bytes) : std::nullopt;
}
