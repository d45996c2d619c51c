#pragma once

#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QString>

class HttpIdentify;
class IdentifySender;

/// One device known to the wizard.
struct DeviceData
{
    QString label;      ///< host name shown to the user
    QString ipAddress;  ///< dotted IPv4 text; identifies the device inside the document
    QString modelName;  ///< model as the device reports it, for example "PX-HB"
    QString version;    ///< firmware version, separated by dots
    QString macAddress; ///< six two-digit hexadecimal groups joined by colons
    QString searchType; ///< "HTTP" when reached over the hub's web API, else the discovery kind
    QString password;   ///< for the web API; empty if none. Never leaves the document as data.
    int roomNumber = 0; ///< 1 to 4; 0 = in no room
    IdentifySender* identifySender = nullptr; ///< owned by the document, made on first use
    HttpIdentify* httpIdentify = nullptr;     ///< owned by the document, made on first use
    bool labelModified = false;               ///< the user changed the label
};

/// One drawn room.
struct RoomInfo
{
    static constexpr int maxRooms = 4;
    static constexpr int gridSide = 8; ///< columns, and rows, of the grid that rooms are drawn on

    int number = 0;             ///< 1 to maxRooms
    QList<QPoint> positionList; ///< its cells, x = column and y = row, from 0
};

/// One room layout: a way of dividing or combining the rooms.
struct SceneInfo
{
    int number = 0;    ///< 1 to 10
    QString roomGroup; ///< for example "1+2/3/4"
    QPixmap thumbnail; ///< 64 x 64 picture of the combined rooms
};

/// One device's membership in one combined room of one layout.
struct DeviceSetInfo
{
    int deviceSetNumber = 0; ///< running number of the combined room over all layouts, from 1
    int sceneNumber = 0;     ///< the layout
    QString ipAddress;       ///< the device
    bool remove = false;     ///< the installer took the device out of this set
    QString speakerPosition = QStringLiteral("L"); ///< "L" or "R"
};

/// The preset of one combined room of one layout.
struct PresetInfo
{
    int deviceSetNumber = 0;
    int sceneNumber = 0;
    QString presetName; ///< may be empty
};
