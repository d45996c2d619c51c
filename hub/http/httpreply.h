#pragma once

#include <QString>

/// Reads the parts of a reply's text. A reply is whatever the hub sent: every function takes any
/// text and says what it would mean; what is missing reads as empty or 0.
namespace HttpReply {

/// Everything before the first empty line; the whole text when there is none.
QString header(const QString& reply);

/// What follows the empty line. Empty when there is none, and also when there is a second one:
/// such a text cannot be told apart from two replies.
QString body(const QString& reply);

/// The second word of the first line, for example "200"; empty when there is none.
QString status(const QString& reply);

/// The status with the words that the hub adds to it, for example "507 Insufficient Storage": the
/// first line behind its first blank, on one line and not longer than a reader wants it.
QString statusText(const QString& reply);

/// True when the status is exactly "200", the only one that counts as success.
bool isOk(const QString& reply);

/// The body's length as the header announces it. The last "Content-Length:" line counts; 0 when
/// there is none or its value is no decimal number within an int. May be negative.
int contentLength(const QString& header);

/// True when a "Connection:" line says "close", in this case and with any blanks around it.
bool wantsClose(const QString& header);

/// A number of the JSON object in the reply's body; 0 when there is no such number.
int jsonInt(const QString& reply, const QString& key);

/// A text of the JSON object in the reply's body; empty when there is no such text.
QString jsonText(const QString& reply, const QString& key);

} // namespace HttpReply
