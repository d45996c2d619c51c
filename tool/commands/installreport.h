#pragma once

#include "documentdata.h"

#include <QJsonObject>

class HallInstallation;

/// How each hub ended, for people.
QString installTable(const QList<DeviceData>& hubs, const HallInstallation& installation);

/// The same for programs.
QJsonObject installObject(const QList<DeviceData>& hubs, const HallInstallation& installation);
