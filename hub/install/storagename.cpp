#include "storagename.h"

#include <QStringList>

namespace {

QString lastDispositionLine(const QString& header)
{
    QString last;
    for (const QString& line : header.split(QStringLiteral("\r\n"))) {
        if (line.startsWith(QLatin1String("Content-Disposition:"))) {
            last = line;
        }
    }
    return last;
}

} // namespace

std::optional<QString> storageName(const QString& header)
{
    const QString line = lastDispositionLine(header);
    const QString opening = QStringLiteral("filename=\"");
    // Only the first file name counts; without its quotes there is none.
    const qsizetype name = line.indexOf(QStringLiteral("filename="));
    if (name < 0 || !QStringView(line).sliced(name).startsWith(opening)) {
        return std::nullopt;
    }
    const qsizetype begin = name + opening.size();
    const qsizetype end = line.indexOf(u'"', begin);
    if (end < 0) {
        return std::nullopt;
    }
    const QString storage = line.mid(begin, end - begin).section(u'.', 0, 0);
    return storage.isEmpty() ? std::nullopt : std::optional(storage);
}
