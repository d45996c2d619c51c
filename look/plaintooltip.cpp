#include "plaintooltip.h"

#include <QTextDocument>

QString plainToolTip(const QString& text)
{
    // Nothing else is converted: formatted tool tips wrap their lines.
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}
