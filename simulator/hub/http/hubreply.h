#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>

/// One HTTP reply of a hub, before it is put on the wire.
struct HubReply
{
    struct Header
    {
        QByteArray name;
        QByteArray value;
    };

    int status = 200;
    QList<Header> headers = {};
    QByteArray body = {};
    /// What happened, for a person who watches the hall; empty when nothing worth a line did.
    QString note = {};

    /// A reply with a JSON body and the header lines that every reply has.
    static HubReply json(int status, const QJsonObject& body, const QString& note = {});
    /// A refusal that says why.
    static HubReply error(int status, const QString& reason);
    /// A reply with any body.
    static HubReply content(const QByteArray& type, const QByteArray& body);

    /// Exchanges the body and its length line.
    void setBody(const QByteArray& newBody);
    /// Sets the value of the header line of that name, or adds the line.
    void setHeader(const QByteArray& name, const QByteArray& value);
    /// The position of the first header line of that name; negative when there is none.
    qsizetype indexOf(const QByteArray& name) const;

    /// Status line and header lines with the empty line behind them.
    QByteArray headerBytes() const;
    /// The whole reply.
    QByteArray bytes() const;
};
