#include "hallstore.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

QByteArray jsonText(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

QJsonObject deviceState(const SimulatedDevice& device)
{
    return {{QStringLiteral("label"), device.description().label},
            {QStringLiteral("model"), device.description().model},
            {QStringLiteral("current-preset"), device.currentPreset()},
            {QStringLiteral("identify-count"), device.identifyCount()},
            {QStringLiteral("differences"), QJsonArray::fromStringList(device.differences())}};
}

QJsonObject hubState(const SimulatedHub& hub)
{
    QJsonObject state = deviceState(hub);
    state.insert(QStringLiteral("initialised"), hub.isInitialised());
    state.insert(QStringLiteral("log-ins"), hub.logInCount());
    state.insert(QStringLiteral("recalled-preset"), hub.recalledPreset());
    return state;
}

void addPresets(const SimulatedHub& hub, QMap<QString, QByteArray>& contents)
{
    for (auto preset = hub.presets().begin(); preset != hub.presets().end(); ++preset) {
        const QString folder = QStringLiteral("preset-%1/").arg(preset.key());
        contents.insert(folder + QStringLiteral("entry.json"), preset->entry);
        for (auto file = preset->files.begin(); file != preset->files.end(); ++file) {
            contents.insert(folder + file.key() + QStringLiteral(".xml"), file.value());
        }
    }
}

} // namespace

HallStore::HallStore(const Hall& hall, const QString& folder, QObject* parent)
    : QObject(parent)
    , m_hall(hall)
    , m_folder(folder)
{
}

bool HallStore::start(QString* error)
{
    for (const SimulatedDevice* device : m_hall.devices()) {
        removeEarlier(device->address());
        if (!writeChanges(device->address(), error)) {
            return false;
        }
    }
    connect(&m_hall, SIGNAL(changed(QString)), this, SLOT(writeDevice(QString)));
    return true;
}

void HallStore::writeDevice(const QString& address)
{
    QString error;
    if (!writeChanges(address, &error)) {
        Q_EMIT failed(address, error);
    }
}

QMap<QString, QByteArray> HallStore::contentsOf(const QString& address) const
{
    QMap<QString, QByteArray> contents;
    const QString stateFile = QStringLiteral("state.json");
    if (const SimulatedHub* hub = m_hall.hub(address)) {
        contents.insert(stateFile, jsonText(hubState(*hub)));
        addPresets(*hub, contents);
    } else if (const SimulatedDevice* device = m_hall.device(address)) {
        contents.insert(stateFile, jsonText(deviceState(*device)));
    }
    return contents;
}

bool HallStore::writeChanges(const QString& address, QString* error)
{
    const QMap<QString, QByteArray> contents = contentsOf(address);
    QMap<QString, QByteArray>& written = m_written[address];
    const QString folder = m_folder + QLatin1Char('/') + address + QLatin1Char('/');
    for (const QString& path : written.keys()) {
        if (!contents.contains(path)) {
            QFile::remove(folder + path);
            written.remove(path);
        }
    }
    for (auto file = contents.begin(); file != contents.end(); ++file) {
        if (written.value(file.key()) == file.value()) {
            continue;
        }
        if (!writeFile(folder + file.key(), file.value(), error)) {
            return false;
        }
        written.insert(file.key(), file.value());
    }
    return true;
}

bool HallStore::writeFile(const QString& path, const QByteArray& bytes, QString* error) const
{
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder)) {
        *error = QStringLiteral("cannot make the folder %1").arg(folder);
        return false;
    }
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
        file.commit()) {
        return true;
    }
    *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
    return false;
}

void HallStore::removeEarlier(const QString& address) const
{
    const QDir folder(m_folder + QLatin1Char('/') + address);
    for (const QString& name :
         folder.entryList({QStringLiteral("preset-*")}, QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDir(folder.filePath(name)).removeRecursively();
    }
    QFile::remove(folder.filePath(QStringLiteral("state.json")));
}
