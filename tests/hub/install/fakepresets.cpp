#include "fakepresets.h"

#include "datakey.h"
#include "datakind.h"

namespace {

constexpr int peripheralCount = 24;

} // namespace

QByteArray FakePresets::hubFile(int presetNumber)
{
    QByteArray file = "<provisioning>\n <config";
    for (int i = 1; i <= peripheralCount; ++i) {
        file += " peripheral.mac-addr" + QByteArray::number(i) + "=\"00:00:00:00:00:00\"";
    }
    for (int i = 1; i <= peripheralCount; ++i) {
        file += " peripheral.position" + QByteArray::number(i) + "=\"1\"";
    }
    return file + " sys.systemname=\"Preset " + QByteArray::number(presetNumber) +
           "\" sys.systemname-mode=\"0\"/>\n</provisioning>\n";
}

QString FakePresets::macOf(const QString& ipAddress)
{
    return QStringLiteral("00:A0:DE:00:00:0%1").arg(ipAddress.back());
}

bool FakePresets::setData(int /*kind*/, const QVariantMap& /*data*/)
{
    return false;
}

bool FakePresets::getData(int kind, QVariantMap& data)
{
    if (kind == unreadableKind) {
        return false;
    }
    if (kind == DataKind::SceneCount) {
        data.insert(DataKey::count(), int(names.size()));
        return true;
    }
    return kind == DataKind::DevicePresetFile ? readDeviceFile(data) : readPreset(kind, data);
}

bool FakePresets::clearData(int /*kind*/)
{
    return false;
}

bool FakePresets::addData(int /*kind*/, const QVariantMap& /*data*/)
{
    return false;
}

bool FakePresets::doAction(int /*kind*/, const QVariantMap& /*data*/)
{
    return false;
}

bool FakePresets::getDataList(int /*kind*/, const QVariantMap& /*selector*/,
                              QList<QVariantMap>& /*list*/)
{
    return false;
}

bool FakePresets::saveResume(const QString& /*path*/)
{
    return false;
}

bool FakePresets::loadResume(const QString& /*path*/)
{
    return false;
}

bool FakePresets::readPreset(int kind, QVariantMap& data) const
{
    const int number = data.value(DataKey::sceneNumber()).toInt();
    if (number < 1 || number > names.size() || !data.contains(DataKey::deviceIPAddress())) {
        return false;
    }
    switch (kind) {
    case DataKind::Preset:
        data.insert(DataKey::presetName(), names.at(number - 1));
        return true;
    case DataKind::PresetFile:
        data.insert(DataKey::presetFile(), hubFile(number));
        return true;
    case DataKind::DeviceIPList:
        data.insert(DataKey::deviceIPList(), devices.value(number));
        return true;
    default:
        return false;
    }
}

bool FakePresets::readDeviceFile(QVariantMap& data) const
{
    const QString address = data.value(DataKey::deviceIPAddress()).toString();
    if (!deviceFiles.contains(address)) {
        return false;
    }
    data.insert(DataKey::presetFile(), deviceFiles.value(address).toUtf8());
    data.insert(DataKey::deviceMacAddress(), macOf(address));
    return true;
}
