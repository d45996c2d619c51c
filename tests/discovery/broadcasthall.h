#pragma once

#include "simpledevice.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUdpSocket>

#include <memory>
#include <vector>

/// The hall's end of a broadcast test: devices that hear the wizard's broadcast and answer it with
/// whatever datagrams the scenario gives them, all at once.
class BroadcastHall : public QObject
{
    Q_OBJECT

public:
    /// The names of the scenarios; each is also the name of the test on the wizard's end.
    static QStringList scenarios();

    /// Sets up the scenario of that name and opens all ports; false when one is taken or the
    /// scenario is unknown.
    bool open(const QString& scenario);

private Q_SLOTS:
    void answerQuery();

private:
    using SetUp = void (BroadcastHall::*)();
    struct Scenario
    {
        QString name;
        SetUp setUp;
    };
    static QList<Scenario> table();

    struct Device
    {
        std::unique_ptr<SimpleDevice> device;
        QList<QByteArray> datagrams;
    };

    SimpleDevice& add(int number, const QByteArray& model, const QByteArray& serial,
                      char lastMacByte);
    void addSpoilt(const QByteArray& datagram);

    void addEcho();
    void addOne();
    void addTwoHundredAndFifty();
    void addHubs();
    void addMalformed();
    void addRefusing();

    std::vector<Device> m_devices;
    QUdpSocket m_listener;
    bool m_doesEcho = false;
    bool m_isOpen = true;
};

/// The one device that answers well among malformed replies.
constexpr int goodDevice = 200;

/// The address of a device, numbered from 1.
QString hallAddress(int number);
