#pragma once

#include <QStringList>
#include <QTcpSocket>

/// The least that a device can be identified with: six questions over a socket, each once the
/// answer before it has come, and the values read out of the answers at the end.
class BareIdentity : public QObject
{
    Q_OBJECT

public:
    explicit BareIdentity(const QString& address);

Q_SIGNALS:
    void finished();

private Q_SLOTS:
    void ask();
    void answered();

private:
    void readValues();

    QTcpSocket m_socket;
    QStringList m_answers;
    QStringList m_values;
};
