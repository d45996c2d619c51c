#include "firstpassword.h"

#include <QRegularExpression>

QString FirstPassword::pattern()
{
    return QStringLiteral("[A-Za-z0-9]+");
}

bool FirstPassword::isPossible(const QString& password)
{
    const QRegularExpression letters(QRegularExpression::anchoredPattern(pattern()));
    return password.size() >= minLength && password.size() <= maxLength &&
           letters.match(password).hasMatch();
}
