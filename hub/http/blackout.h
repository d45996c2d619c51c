#pragma once

#include <QString>
#include <QStringList>

/// What is said between the wizard and a hub, in parts that may be written down.
struct HttpMessage
{
    QString firstLine;
    QStringList headers;
    QString body;
};

/// Blacks out what would let a reader of requests and replies log in, or work under the wizard's
/// log-in: tokens, what stands for passwords, cookies, and header lines that carry such things.
///
/// It goes by places, and it remembers: a token or a digest that it has met once is blacked out
/// wherever else it appears, for example where a hub says it again in a message of its own. What a
/// hub exports of itself is left out altogether, since nobody here knows what it holds.
class Blackout
{
public:
    /// A request as it goes out, and a reply to the request with this first line.
    HttpMessage request(const QString& text);
    HttpMessage reply(const QString& requestLine, const QString& text);

    /// Any text without the tokens and digests that were met until now.
    QString withoutKnown(const QString& text) const;

private:
    HttpMessage blackedOut(const QString& requestLine, const QString& text, bool isReply);
    void learnFrom(const QString& requestLine, const HttpMessage& message);
    void learn(const QString& secret);

    QStringList m_known;
};
