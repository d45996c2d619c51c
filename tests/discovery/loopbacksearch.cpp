#include "loopbacksearch.h"

#include <QNetworkInterface>
#include <QTest>

int loopbackIndex()
{
    for (const QNetworkInterface& nic : QNetworkInterface::allInterfaces()) {
        if (nic.flags().testFlag(QNetworkInterface::IsLoopBack)) {
            return nic.index();
        }
    }
    return 0;
}

QString address(int device)
{
    return QStringLiteral("127.30.3.%1").arg(device);
}

Search::Search()
    : detector(nullptr, loopbackIndex())
    , spy(&detector, SIGNAL(deviceDetected(QString)))
{
    detector.detect();
}

QStringList Search::reported() const
{
    QStringList addresses;
    for (const QVariantList& arguments : spy) {
        addresses += arguments.first().toString();
    }
    return addresses;
}

qsizetype Search::queries() const
{
    return detector.findChildren<DeviceInfoReceiver*>().size();
}

bool Search::isIdentified(const QString& ipText) const
{
    return !detector.deviceInfo(ipText).serialNumber.isEmpty();
}

void answer(SimpleDevice& device)
{
    device.send(device.reply().bytes(), wizard);
}

void waitForControlDevice(Search& search)
{
    SimpleDevice control(address(250), "PX-DL5", "control", 9);
    QVERIFY(control.open());
    answer(control);
    QTRY_VERIFY(search.reported().contains(address(250)));
}
