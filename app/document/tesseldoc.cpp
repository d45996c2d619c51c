#include "tesseldoc.h"

#include "commandline.h"
#include "configuration.h"
#include "datakey.h"
#include "datakind.h"
#include "deviceidentify.h"
#include "documentdata.h"
#include "kindoperations.h"
#include "missingdevices.h"
#include "resumefile.h"
#include "resumexml.h"
#include "workrestore.h"

#include <QCoreApplication>

TesselDoc::TesselDoc(QObject* parent)
    : QObject(parent)
    , m_data(std::make_unique<DocumentData>())
{
    const CommandLine commandLine = readCommandLine(QCoreApplication::arguments());
    m_data->nicIndex = commandLine.nicIndex;
    m_data->isNicHandedOver = commandLine.nicIndex != 0;
    for (const DeviceData& device : commandLine.devices) {
        m_data->devices.append(device);
    }
}

TesselDoc::~TesselDoc()
{
    for (const DeviceData& device : m_data->devices.all()) {
        deleteIdentifiers(device);
    }
}

bool TesselDoc::setData(int kind, const QVariantMap& data)
{
    const auto set = operationsOf(kind).set;
    return set != nullptr && set(*m_data, data);
}

bool TesselDoc::getData(int kind, QVariantMap& data)
{
    const auto get = operationsOf(kind).get;
    return get != nullptr && get(*m_data, data);
}

bool TesselDoc::clearData(int kind)
{
    const auto clear = operationsOf(kind).clear;
    if (clear == nullptr) {
        return false;
    }
    clear(*m_data);
    return true;
}

bool TesselDoc::addData(int kind, const QVariantMap& data)
{
    const auto add = operationsOf(kind).add;
    return add != nullptr && add(*m_data, data);
}

bool TesselDoc::doAction(int kind, const QVariantMap& data)
{
    if (kind != DataKind::Identify || !data.contains(DataKey::deviceIPAddress())) {
        return false;
    }
    DeviceData* device = m_data->devices.find(data.value(DataKey::deviceIPAddress()).toString());
    if (device == nullptr) {
        return false;
    }
    startIdentify(*device, this);
    return true;
}

bool TesselDoc::getDataList(int kind, const QVariantMap& selector, QList<QVariantMap>& list)
{
    const auto getList = operationsOf(kind).list;
    return getList != nullptr && getList(*m_data, selector, list);
}

bool TesselDoc::saveResume(const QString& path)
{
    const ResumeFile content{writeResumeXml(gatherWork(*m_data)), m_data->scenes};
    return writeResumeFile(path, packResumeFile(content));
}

bool TesselDoc::loadResume(const QString& path)
{
    const std::optional<Configuration> saved = readRemains(path);
    if (!saved) {
        return false;
    }
    const RestoreOutcome outcome = restoreWork(*m_data, saved->work, saved->pictures);
    if (!outcome.missing.isEmpty()) {
        warnOfMissingDevices(outcome.missing);
    }
    return outcome.isComplete;
}

QList<SavedDevice> TesselDoc::takeOver(const Configuration& configuration)
{
    return restoreWork(*m_data, configuration.work, configuration.pictures, IfMissing::LeaveOut)
        .missing;
}
