#include "outputfile.h"

#include <QFileInfo>

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
