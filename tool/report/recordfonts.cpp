#include "recordfonts.h"

#include <QFont>
#include <QRawFont>

bool hasFonts()
{
    // Names of families are there in any case; a font behind them is not.
    const QRawFont font = QRawFont::fromFont(QFont());
    return font.isValid() && font.supportsCharacter(u'A') && font.supportsCharacter(u'1');
}
