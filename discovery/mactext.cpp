#include "mactext.h"

#include <QStringList>

namespace {

constexpr int hexadecimal = 16;

} // namespace

QString formatMac(const QByteArray& mac)
{
    return QString::fromLatin1(mac.toHex(':').toUpper());
}

int compareMacText(const QString& a, const QString& b)
{
    const QStringList groupsOfA = a.split(u':');
    const QStringList groupsOfB = b.split(u':');
    for (qsizetype i = 0; i < groupsOfA.size(); ++i) {
        const int groupOfA = groupsOfA.at(i).toInt(nullptr, hexadecimal);
        const int groupOfB = groupsOfB.value(i).toInt(nullptr, hexadecimal);
        if (groupOfA != groupOfB) {
            return groupOfA < groupOfB ? -1 : 1;
        }
    }
    return 0;
}
