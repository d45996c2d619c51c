#include "largehall.h"

HallDescription largeHall()
{
    HallDescription hall =
        HallDescription::byCounts(8, 242, QStringLiteral("10.54.1.1")).value_or(HallDescription());
    hall.addSecondAddresses(4);
    hall.discovery = true;
    hall.discoveryListen = QStringLiteral("10.54.255.255");
    return hall;
}
