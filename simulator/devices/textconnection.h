#pragma once

#include "delivery.h"
#include "fault.h"
#include "pacedwriter.h"

#include <QObject>
#include <functional>
#include <optional>

class QTcpSocket;

/// One connection to a device's text-command port: gives one answer for each received line.
class TextConnection : public QObject
{
    Q_OBJECT

public:
    /// Answers one line, given without its line feed.
    using Answerer = std::function<Delivery(const QByteArray&)>;

    /// Faults that strike the connection as such.
    struct Faults
    {
        std::optional<Fault> greeting = {};
        std::optional<Fault> greetingWithAnswer = {};
        std::optional<Fault> stopAfter = {};
    };

    /// Takes the socket over and deletes itself once the connection has ended.
    TextConnection(QTcpSocket* socket, Answerer answerer, const Faults& faults, QObject* parent);

    /// Ends the connection at once.
    void abort();

Q_SIGNALS:
    /// A line came that has no end; in plain words.
    void lineBroken(const QString& difference);

private Q_SLOTS:
    void readMore();
    void finish();

private:
    void answerLine(const QByteArray& line);

    QTcpSocket* m_socket;
    Answerer m_answerer;
    Faults m_faults;
    PacedWriter m_writer;
    QByteArray m_buffer;
    int m_answers = 0;
    bool m_isOver = false;
};
