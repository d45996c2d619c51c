#pragma once

#include <QByteArray>
#include <QString>

/// The bytes as text for a journal: long runs of hexadecimal digits (password hashes, tokens) and
/// everything after "bearer" are hidden, control characters are shown escaped, and the text is cut
/// after a few dozen words' length. Whatever a peer sends, no secret gets into a log this way.
QString redacted(const QByteArray& bytes);
