#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// One discovery datagram, read. Query and reply share one layout; integers are big-endian and
/// texts are UTF-8 behind a length byte.
///
///     offset  size  field
///     0       4     magic "QNFL"
///     4       2     number of bytes behind this field
///     6       1     flags: bit 7 = reply, low four bits = mode
///     7       1     address family: 4 or 6
///     8       16    address, IPv4 in the first four bytes
///     24      6     MAC address
///     30      1+N   service text
///     31+N    2     body indicator; non-zero: name, model and trailing text follow
struct DiscoveryPacket
{
    int replyFlag = 0;
    int modeFlag = 0;
    QString ipText; // empty for an unknown address family
    QByteArray mac; // six bytes, fewer where the datagram ends early
    QString serviceText;
    QString nameText;
    QString modelText;
    QString trailingText;
};

/// The query to broadcast. `localAddressText` is the querier's own address; an empty or unreadable
/// one gives the shortened form, in which the address field is missing altogether. A flag is set
/// when its argument is 1.
QByteArray buildDiscoveryQuery(const QString& localAddressText, int replyFlag, int modeFlag);

/// Reads a datagram. Nothing comes back when it is too short, has another magic or a length field
/// that does not match; a first length byte of 0x80 or more never matches, because it is signed.
/// Fields behind the end of the datagram read as empty or zero; a text length of 0x80 or more, also
/// signed, takes everything up to the end.
std::optional<DiscoveryPacket> parseDiscoveryPacket(const QByteArray& bytes);

/// An address as text: four bytes as dotted decimals, sixteen as eight groups of lower-case
/// hexadecimals, any other number as empty text. The sixteen are signed: 0xF0 is written "-10".
QString formatAddressBytes(QByteArrayView address);
