#include "shellword.h"

#include <QRegularExpression>

QString shellWord(const QString& text)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_./-]+\\z"));
    QString quoted = text;
    return plain.match(text).hasMatch()
               ? text
               : u'\'' + quoted.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}
