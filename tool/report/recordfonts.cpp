#include "recordfonts.h"

#include <QFont>
#include <QRawFont>

bool hasFonts()
{
    // Where there is none, Qt has one all the same, whose letters are all the same box.
    const QRawFont font = QRawFont::fromFont(QFont());
    const QList<quint32> glyphs = font.glyphIndexesForString(QStringLiteral("A1"));
    return glyphs.size() == 2 && glyphs.first() != glyphs.last();
}
