#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Puts together the replies of one connection from the pieces in which their bytes arrive.
///
/// A reply is complete when its body has at least the length that its header announces, counted in
/// UTF-16 units of the decoded text. It is then handed out, once, with all that stands behind the
/// header, also what goes beyond the announced length: some hubs announce too little. So a reply
/// that brings what it announces is the same however its bytes were cut, while one that brings
/// more is what had arrived when it was long enough. A reply that announces no length, or 0, and
/// one with an empty line inside its body, is never handed out: whoever waits for it needs a
/// time-out. (A negative length is the exception: nothing is left to wait for, and HttpReply finds
/// the body of such a text empty.)
///
/// Bytes that begin with "HTTP/1.1" begin a new reply and drop an unfinished one; so do the first
/// bytes after a reply that was handed out.
class ReplyReader
{
public:
    /// A reply that announces more than this (in UTF-16 units), or whose header does not end within
    /// it, is never handed out and not kept in memory.
    static constexpr qsizetype maxLength = qsizetype{16} * 1024 * 1024;

    /// Takes the bytes of one arrival.
    void feed(const QByteArray& bytes);

    /// The reply, if it is complete and has not been taken yet.
    std::optional<QString> takeReply();

    /// Forgets everything: a new connection, or a new question, begins.
    void reset();

private:
    enum class Stage
    {
        Header,
        Body,
        Complete,
        NeverComplete
    };

    QString decode(const QByteArray& bytes);
    void readHeader();
    void readBody();
    void giveUp();

    Stage m_stage = Stage::Header;
    QByteArray m_undecoded;   ///< the beginning of a character that is not complete yet
    QString m_text;           ///< the reply so far
    qsizetype m_searched = 0; ///< up to here there is no end of the header
    qsizetype m_bodyStart = 0;
    int m_length = 0; ///< of the body as announced; known from stage Body on
};
