#include "passwordfile.h"

#include "devicetexts.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringList>

namespace {

/// No hall has so many hubs, and a device that never ends is no file.
constexpr qint64 maxBytes = 1 << 20;

/// Why a file that is open must not be used; empty when it may.
QString openness(const QFile& file)
{
#ifdef Q_OS_WIN
    Q_UNUSED(file)
    return {};
#else
    const QFileDevice::Permissions others = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                            QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                            QFileDevice::WriteOther | QFileDevice::ExeOther;
    return (file.permissions() & others)
               ? QStringLiteral("others than its owner may open it; take that away with "
                                "\"chmod 600\"")
               : QString();
#endif
}

bool isPassedOver(const QString& line)
{
    return line.startsWith(u'#') || line.trimmed().isEmpty();
}

/// Takes a line of an address and a password; returns what is wrong with it.
QString taken(const QString& line, QHash<QString, QString>& passwords)
{
    qsizetype blank = 0;
    while (blank < line.size() && line.at(blank) != u' ' && line.at(blank) != u'\t') {
        ++blank;
    }
    const QString address = line.left(blank);
    if (!isIpv4Address(address)) {
        return QStringLiteral("it does not begin with an IPv4 address");
    }
    if (blank + 1 >= line.size()) {
        return QStringLiteral("there is no password behind the address");
    }
    if (passwords.contains(address)) {
        return QStringLiteral("an earlier line has this address");
    }
    passwords.insert(address, line.mid(blank + 1));
    return {};
}

PasswordReading readLines(const QString& path, const QString& text)
{
    PasswordReading reading;
    int number = 0;
    for (QString line : text.split(u'\n')) {
        ++number;
        if (line.endsWith(u'\r')) {
            line.chop(1);
        }
        const QString fault = isPassedOver(line) ? QString() : taken(line, reading.passwords);
        if (!fault.isEmpty()) {
            return {{},
                    QStringLiteral("%1: line %2: %3").arg(path, QString::number(number), fault)};
        }
    }
    return reading;
}

PasswordReading refused(const QString& path, const QString& reason)
{
    return {{}, QStringLiteral("%1: %2").arg(path, reason)};
}

} // namespace

PasswordReading readPasswordFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return refused(path, file.errorString());
    }
    const QString open = openness(file);
    if (!open.isEmpty()) {
        return refused(path, open);
    }
    const QByteArray bytes = file.read(maxBytes + 1);
    if (bytes.size() > maxBytes) {
        return refused(path, QStringLiteral("it is too large for a file of passwords"));
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? refused(path, QStringLiteral("it is no text in UTF-8"))
                              : readLines(path, text);
}
