#include "outputfile.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

QString outputFault(const QString& path, const QStringList& inputs)
{
    const QFileInfo output(path);
    if (path.isEmpty() || !output.exists()) {
        return {};
    }
    if (!output.isFile()) {
        return path + QStringLiteral(": this is no file, and is not replaced by one");
    }
    const bool isInput = std::any_of(inputs.begin(), inputs.end(), [&output](const QString& input) {
        return QFileInfo(input).canonicalFilePath() == output.canonicalFilePath();
    });
    return isInput ? path + QStringLiteral(": this is the file that is read; choose another output")
                   : QString();
}

QString writeWhole(QSaveFile& file, const QByteArray& bytes)
{
    // Flushed by itself: when the last bytes find no room, the commit would not notice.
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush() && file.commit();
    return isWritten ? QString() : writeFault(file);
}

QString writeWholeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) ? writeWhole(file, bytes) : writeFault(file);
}

QString writeFault(const QSaveFile& file)
{
    // A disk that has room for a part of the bytes gives no reason.
    const bool isExplained =
        file.error() != QFileDevice::NoError && file.error() != QFileDevice::WriteError;
    return file.fileName() + QStringLiteral(": ") +
           (isExplained ? file.errorString()
                        : QStringLiteral("it could not be written completely"));
}
