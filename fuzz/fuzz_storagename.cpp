// The storage name in the header of a hub's export.
//
// - A name is not empty, has neither a dot nor a quote in it and stands behind filename=" in the
//   header.
// - Written as the file name of a header of its own, it is found again.
// - Further lines of other kinds change nothing; a further line that names no file, or another one,
//   counts instead.
#include "fuzztarget.h"
#include "storagename.h"

#include <QString>

#include <optional>

namespace {

QString lineNaming(const QString& fileName)
{
    return QStringLiteral("Content-Disposition: attachment; filename=\"") + fileName + u'"';
}

void examineName(const QString& header, const QString& name)
{
    require(!name.isEmpty(), "a name is not empty");
    require(!name.contains(u'.') && !name.contains(u'"'), "a name ends at the dot or the quote");
    require(header.contains(QStringLiteral("filename=\"") + name), "a name is quoted");
    require(storageName(lineNaming(name)) == name, "a name alone is found again");
    require(storageName(lineNaming(name + QStringLiteral(".a.b"))) == name,
            "a name with endings is found again");
}

} // namespace

void examine(const QByteArray& input)
{
    const QString header = QString::fromUtf8(input);
    const std::optional<QString> name = storageName(header);
    if (name) {
        examineName(header, *name);
    }
    const auto with = [&header](const QString& line) {
        return storageName(header + QStringLiteral("\r\n") + line);
    };
    require(with(QStringLiteral("Content-Length: 2")) == name, "other lines are passed over");
    require(!with(QStringLiteral("Content-Disposition: inline")), "the last line counts");
    require(with(lineNaming(QStringLiteral("hub.xml"))) == QStringLiteral("hub"),
            "the last line counts");
}
