#pragma once

#include <QByteArray>
#include <QString>

/// A MAC address as text: each byte as two upper-case hexadecimal digits, joined by colons.
QString formatMac(const QByteArray& mac);

/// Compares two MAC texts group by group as hexadecimal numbers: negative when `a` is lower,
/// positive when `b` is, 0 when all groups of `a` are equal to those of `b`. A missing or
/// unreadable group counts as 0.
int compareMacText(const QString& a, const QString& b);
