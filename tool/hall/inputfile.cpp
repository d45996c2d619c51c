#include "inputfile.h"

#include "wholefile.h"

namespace {

constexpr qint64 maxTextSize = qint64(16) * 1024 * 1024;

} // namespace

QString readInputFile(const QString& path, QByteArray& text)
{
    QString fault;
    text = readWholeFile(path, maxTextSize, fault).value_or(QByteArray());
    return fault.isEmpty() && text.isEmpty() ? QStringLiteral("the file is empty") : fault;
}
