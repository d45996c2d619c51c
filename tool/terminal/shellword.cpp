#include "shellword.h"

#include <QRegularExpression>

namespace {

#ifdef Q_OS_WIN

// Backslashes and drives are a path's own.
const QString plainLetters = QStringLiteral("\\A[A-Za-z0-9_./:\\\\-]+\\z");

/// A file's name holds no quotation marks here. A backslash before the last one would be taken for
/// a part of it.
QString inQuotes(const QString& text)
{
    return u'"' + text + (text.endsWith(u'\\') ? QStringLiteral("\\\"") : QStringLiteral("\""));
}

#else

const QString plainLetters = QStringLiteral("\\A[A-Za-z0-9_./-]+\\z");

QString inQuotes(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

#endif

} // namespace

QString shellWord(const QString& text)
{
    static const QRegularExpression plain(plainLetters);
    return plain.match(text).hasMatch() ? text : inQuotes(text);
}
