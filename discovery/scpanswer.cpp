#include "scpanswer.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int fourth = 3;
constexpr int minPresetWords = 3;

bool endsLine(QChar character)
{
    return character == u'\r' || character == u'\n';
}

QStringList firstLineWords(const QString& answer)
{
    const auto end = std::find_if(answer.cbegin(), answer.cend(), endsLine);
    return answer.left(end - answer.cbegin()).split(u' ');
}

} // namespace

QString ScpAnswer::quotedText(const QString& answer)
{
    const qsizetype opening = answer.indexOf(u'"');
    const qsizetype closing = opening < 0 ? -1 : answer.indexOf(u'"', opening + 1);
    return closing < 0 ? QString() : answer.mid(opening + 1, closing - opening - 1);
}

QString ScpAnswer::fourthWord(const QString& answer)
{
    return firstLineWords(answer).value(fourth);
}

int ScpAnswer::fourthWordNumber(const QString& answer)
{
    return fourthWord(answer).toInt();
}

QString ScpAnswer::currentPreset(const QString& answer)
{
    const QStringList words = firstLineWords(answer);
    if (words.size() < minPresetWords || words.first() != u"OK") {
        return {};
    }
    return words.value(fourth);
}
