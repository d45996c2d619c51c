#pragma once

#include "benchdocument.h"
#include "installstep.h"

#include <QBasicTimer>
#include <QStringList>
#include <QTcpSocket>

/// One hub's transfer in the plainest way: builds each request from plain lists, writes it, reads
/// the reply's header lines and its JSON, keeps the same time and the same notes in the debug
/// output. It sends the bytes that the wizard sends.
class BareInstaller : public QObject
{
    Q_OBJECT

public:
    /// `hall` is not owned and outlives the installer.
    BareInstaller(const QString& hub, const HallRecords& hall);

    void connectToHub();

public Q_SLOTS:
    /// Sends the first request.
    void begin();

Q_SIGNALS:
    void connected();
    void sending(const QByteArray& request);
    void finished();

protected:
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void answered();

private:
    void evaluate(const QStringList& headerLines, const QString& body);
    void sendExportQuestion();
    void sendPreset();
    void sendHubFile();
    void sendNextFile();
    void sendNextPreset();
    void sendRecall();
    void sendInvalidation();
    void sendFile(const QString& storage, const QString& file);
    void send(const QString& method, const QString& path, const QString& type, const QString& body);
    void write(const QByteArray& request);
    void note(const QString& text) const;

    QString m_hub;
    const HallRecords& m_hall;
    QTcpSocket m_socket;
    QBasicTimer m_ticks;
    int m_secondsLeft = 0;
    InstallStep m_step = InstallStep::StartExport;
    QString m_reply;
    QString m_storage;
    int m_layout = 1;
    QStringList m_devices;
    qsizetype m_device = 0;
};
