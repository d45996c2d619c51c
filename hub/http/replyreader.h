#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Puts together the replies of one connection from the pieces in which their bytes arrive.
///
/// A reply is complete when its body has the length that its header announces, counted in UTF-16
/// units of the decoded text. Each reply is handed out once, and it is the same however the bytes
/// were cut. A reply that announces no length, or 0, and one with an empty line inside its body,
/// is never handed out: whoever waits for it needs a time-out.
///
/// Bytes that begin with "HTTP/1.1" begin a new reply and drop an unfinished one; so do the first
/// bytes after a reply that was handed out.
class ReplyReader
{
public:
    /// A reply longer than this (in UTF-16 units) is never handed out and not kept in memory.
    static constexpr qsizetype maxLength = qsizetype{16} * 1024 * 1024;

    /// Takes the bytes of one arrival.
    void feed(const QByteArray& bytes);

    /// The next complete reply; nothing when it is not complete yet.
    std::optional<QString> takeReply();

    /// Forgets everything: a new connection, or a new question, begins.
    void reset();

private:
    enum class Stage
    {
        Header,
        Body,
        NeverComplete
    };

    QString decode(const QByteArray& bytes);
    void readHeader();
    void giveUp();
    void beginReply(const QString& text);

    Stage m_stage = Stage::Header;
    QByteArray m_undecoded;   ///< the beginning of a character that is not complete yet
    QString m_text;           ///< the reply so far
    qsizetype m_searched = 0; ///< up to here there is no end of the header
    qsizetype m_bodyStart = 0;
    qsizetype m_end = 0; ///< known from stage Body on
};
