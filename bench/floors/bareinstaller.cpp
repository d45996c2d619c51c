#include "bareinstaller.h"

#include "barefiles.h"
#include "cannedpeer.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr quint16 webPort = 80;
constexpr int tickMs = 1000;
constexpr int secondsOfSilence = 30;

QString json()
{
    return QStringLiteral("json");
}

QString valueOf(const QStringList& lines, const QString& name)
{
    for (const QString& line : lines) {
        if (line.startsWith(name)) {
            return line.mid(name.size()).simplified();
        }
    }
    return {};
}

QString jsonText(const QString& body, const QString& key)
{
    return QJsonDocument::fromJson(body.toUtf8()).object().value(key).toString();
}

} // namespace

BareInstaller::BareInstaller(const QString& hub, const HallRecords& hall)
    : m_hub(hub)
    , m_hall(hall)
{
    connect(&m_socket, SIGNAL(connected()), this, SIGNAL(connected()));
    connect(&m_socket, SIGNAL(readyRead()), this, SLOT(answered()));
}

void BareInstaller::connectToHub()
{
    m_socket.connectToHost(m_hub, webPort);
}

void BareInstaller::begin()
{
    m_secondsLeft = secondsOfSilence;
    m_ticks.start(tickMs, this);
    send(QStringLiteral("POST"), QStringLiteral("config/export/self/"), json(),
         QStringLiteral(R"({"export":1})"));
}

void BareInstaller::timerEvent(QTimerEvent* /*event*/)
{
    --m_secondsLeft;
}

void BareInstaller::answered()
{
    m_secondsLeft = secondsOfSilence;
    qDebug().noquote()
        << QStringLiteral("%1 Reply Step:%2").arg(m_hub, QString::number(int(m_step)));
    const QString chunk = QString::fromUtf8(m_socket.readAll());
    m_reply = chunk.startsWith(u"HTTP/1.1") ? chunk : m_reply + chunk;
    const QStringList parts = m_reply.split(QStringLiteral("\r\n\r\n"));
    const QStringList lines = parts.first().split(QStringLiteral("\r\n"));
    const int length = valueOf(lines, QStringLiteral("Content-Length:")).toInt();
    if (length == 0 || parts.value(1).size() < length) {
        return;
    }
    if (valueOf(lines, QStringLiteral("Connection:")) == u"close" ||
        lines.first().section(u' ', 1, 1) != u"200") {
        qFatal("The peer does not say what was agreed.");
    }
    evaluate(lines, parts.at(1));
}

void BareInstaller::evaluate(const QStringList& headerLines, const QString& body)
{
    switch (m_step) {
    case InstallStep::StartExport:
        sendExportQuestion();
        break;
    case InstallStep::FetchExport:
        m_storage = valueOf(headerLines, QStringLiteral("Content-Disposition:"))
                        .section(u'"', 1, 1)
                        .section(u'.', 0, 0);
        sendPreset();
        break;
    case InstallStep::PresetEntry:
        sendHubFile();
        break;
    case InstallStep::HubFile:
        m_devices = BareFiles::peripherals(m_hall, m_hub, m_layout);
        m_device = 0;
        sendNextFile();
        break;
    case InstallStep::PeripheralFile:
        ++m_device;
        sendNextFile();
        break;
    case InstallStep::Recall:
        if (jsonText(body, QStringLiteral("request")) == u"accepted") {
            sendInvalidation();
        }
        break;
    default:
        if (jsonText(body, QStringLiteral("status")) == u"invalid") {
            m_ticks.stop();
            Q_EMIT finished();
        }
    }
}

void BareInstaller::sendExportQuestion()
{
    m_step = InstallStep::FetchExport;
    write(QStringLiteral("GET http://%1/api/v0/config/export/self/ HTTP/1.1\r\n"
                         "Accept: application/json, text/plain\r\n"
                         "authorization: bearer %2\r\n"
                         "Content-Type: application/json;charset=utf-8\r\n"
                         "Connection: keep-alive\r\n\r\n")
              .arg(m_hub, CannedPeer::token())
              .toUtf8());
}

void BareInstaller::sendPreset()
{
    m_step = InstallStep::PresetEntry;
    const auto set =
        std::find_if(m_hall.sets.cbegin(), m_hall.sets.cend(), [this](const DeviceSetInfo& record) {
            return record.sceneNumber == m_layout && record.ipAddress == m_hub;
        });
    const auto preset =
        std::find_if(m_hall.presets.cbegin(), m_hall.presets.cend(), [&](const PresetInfo& record) {
            return record.sceneNumber == m_layout && record.deviceSetNumber == set->deviceSetNumber;
        });
    QString name = preset->presetName;
    note(QStringLiteral("PresetName:") + name);
    name.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    send(QStringLiteral("PUT"), QStringLiteral("config/presets/"), json(),
         QStringLiteral(R"({"description": "%1", "preset-number": %2, )"
                        R"("source-type": 2, "external-source": ""})")
             .arg(name, QString::number(m_layout)));
}

void BareInstaller::sendHubFile()
{
    m_step = InstallStep::HubFile;
    note(QStringLiteral("PresetName:") + m_storage);
    sendFile(m_storage, BareFiles::hubFile(m_hall, m_hub, m_layout));
}

void BareInstaller::sendNextFile()
{
    if (m_device == m_devices.size()) {
        sendNextPreset();
        return;
    }
    m_step = InstallStep::PeripheralFile;
    const DeviceData& device = *m_hall.deviceAt.find(m_devices.at(m_device));
    const QString storage = QString(device.macAddress).remove(u':');
    const QString file = BareFiles::peripheralFile(device);
    note(QStringLiteral("Index:%1 MAC:%2 body:%3").arg(QString::number(m_device), storage, file));
    sendFile(storage, file);
}

void BareInstaller::sendNextPreset()
{
    if (m_layout == m_hall.layouts.size()) {
        sendRecall();
    } else {
        ++m_layout;
        sendPreset();
    }
}

void BareInstaller::sendRecall()
{
    m_step = InstallStep::Recall;
    send(QStringLiteral("POST"), QStringLiteral("config/presets/recall"), json(),
         QStringLiteral(R"({"preset-number": 1})"));
}

void BareInstaller::sendInvalidation()
{
    m_step = InstallStep::Invalidate;
    send(QStringLiteral("POST"), QStringLiteral("auth/token/invalidate"), json(),
         QStringLiteral(R"({"access-token": "%1", "status": "invalid"})").arg(CannedPeer::token()));
}

void BareInstaller::sendFile(const QString& storage, const QString& file)
{
    send(QStringLiteral("PUT"),
         QStringLiteral("config/presets/%1/storage/%2/xml").arg(QString::number(m_layout), storage),
         QStringLiteral("xml"), file);
}

void BareInstaller::send(const QString& method, const QString& path, const QString& type,
                         const QString& body)
{
    const QByteArray bytes = body.toUtf8();
    const QString header =
        QStringLiteral("%1 http://%2/api/v0/%3 HTTP/1.1\r\n"
                       "Accept: application/json, text/plain\r\n"
                       "authorization: bearer %4\r\n"
                       "Content-Type: application/%5;charset=utf-8\r\n"
                       "Content-Length: %6\r\n"
                       "Connection: keep-alive\r\n\r\n")
            .arg(method, m_hub, path, CannedPeer::token(), type, QString::number(bytes.size()));
    write(header.toUtf8() + bytes);
}

void BareInstaller::write(const QByteArray& request)
{
    Q_EMIT sending(request);
    m_socket.write(request);
}

void BareInstaller::note(const QString& text) const
{
    qDebug().noquote() << QStringLiteral("%1 Step:%2 ").arg(m_hub, QString::number(int(m_step))) +
                              text;
}
