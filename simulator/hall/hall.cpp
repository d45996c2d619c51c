#include "hall.h"

Hall::Hall(const HallDescription& description, QObject* parent)
    : QObject(parent)
    , m_description(description)
{
    for (const HubDescription& hub : description.hubs) {
        m_hubs.append(new SimulatedHub(hub, this));
        addDevice(m_hubs.last());
    }
    for (const DeviceDescription& peripheral : description.peripherals) {
        addDevice(new SimulatedDevice(peripheral, this));
    }
    for (const Fault& fault : description.faults) {
        setFault(fault);
    }
}

Hall::~Hall()
{
    stop();
}

bool Hall::start(QString* error)
{
    if (const std::optional<QString> problem = m_description.problem()) {
        *error = *problem;
        return false;
    }
    if (startDevices(error) && startDiscovery(error)) {
        return true;
    }
    stop();
    return false;
}

void Hall::stop()
{
    if (m_responder) {
        m_queryCount += m_responder->queryCount();
        m_queryDifferences += m_responder->differences();
    }
    m_responder.reset();
    for (SimulatedDevice* device : m_devices) {
        device->stop();
    }
}

SimulatedHub* Hall::hub(const QString& address) const
{
    return qobject_cast<SimulatedHub*>(device(address));
}

SimulatedDevice* Hall::device(const QString& address) const
{
    return m_byAddress.value(address);
}

int Hall::queryCount() const
{
    return m_responder ? m_queryCount + m_responder->queryCount() : m_queryCount;
}

QStringList Hall::differences() const
{
    QStringList lines;
    for (const SimulatedDevice* device : m_devices) {
        for (const QString& difference : device->differences()) {
            lines.append(device->address() + QStringLiteral(": ") + difference);
        }
    }
    lines += m_queryDifferences;
    return m_responder ? lines + m_responder->differences() : lines;
}

bool Hall::setFault(const Fault& fault)
{
    bool isKnown = false;
    for (SimulatedDevice* each : m_devices) {
        if (fault.address.isEmpty() || each == device(fault.address)) {
            each->setFault(fault);
            isKnown = true;
        }
    }
    return isKnown;
}

void Hall::clearFaults()
{
    for (SimulatedDevice* device : m_devices) {
        device->clearFaults();
    }
}

void Hall::addDevice(SimulatedDevice* device)
{
    m_devices.append(device);
    for (const NetworkPort& port : device->networkPorts()) {
        m_byAddress.insert(port.address, device);
    }
    connect(device, SIGNAL(requestHandled(QString, QString)), this,
            SIGNAL(requestHandled(QString, QString)));
    connect(device, SIGNAL(commandHandled(QString, QString)), this,
            SIGNAL(commandHandled(QString, QString)));
    connect(device, SIGNAL(differenceFound(QString, QString)), this,
            SIGNAL(differenceFound(QString, QString)));
    connect(device, SIGNAL(noticed(QString, QString)), this, SIGNAL(noticed(QString, QString)));
    connect(device, SIGNAL(changed(QString)), this, SIGNAL(changed(QString)));
}

bool Hall::startDevices(QString* error)
{
    for (SimulatedDevice* device : m_devices) {
        if (!device->start(error)) {
            return false;
        }
    }
    return true;
}

bool Hall::startDiscovery(QString* error)
{
    if (!m_description.discovery) {
        return true;
    }
    m_responder = std::make_unique<DiscoveryResponder>(m_devices, m_description.discoveryListen);
    connect(m_responder.get(), SIGNAL(queryHeard(QString)), this, SIGNAL(queryHeard(QString)));
    connect(m_responder.get(), SIGNAL(differenceFound(QString, QString)), this,
            SIGNAL(differenceFound(QString, QString)));
    return m_responder->start(error);
}
