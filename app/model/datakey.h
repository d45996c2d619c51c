#pragma once

#include <QString>

/// The key texts under which values cross IDocAccessor, packed in a QVariantMap.
///
/// A key names the value and its type. Device, room and count keys have one colon after
/// "DataType", the keys of everything that belongs to a layout have two: the difference is part
/// of the key. Only the query functions of this folder and the document itself use these texts.
namespace DataKey {

// clang-format off
inline QString nicIndex()           { return QStringLiteral("DataType:NicIndex=int"); }
inline QString isNicHandedOver()    { return QStringLiteral("DataType:IsNicHandedOver=bool"); }
inline QString index()              { return QStringLiteral("DataType:Index=int"); }
inline QString size()               { return QStringLiteral("DataType:Size=QSize"); }
inline QString count()              { return QStringLiteral("DataType:Count=int"); }
inline QString deviceLabel()        { return QStringLiteral("DataType:DeviceLabel=QString"); }
inline QString deviceIPAddress()    { return QStringLiteral("DataType:DeviceIPAddress=QString"); }
inline QString deviceMacAddress()   { return QStringLiteral("DataType:DeviceMacAddress=QString"); }
inline QString deviceModelName()    { return QStringLiteral("DataType:DeviceModelName=QString"); }
inline QString deviceVersion()      { return QStringLiteral("DataType:DeviceVersion=QString"); }
inline QString deviceSearchType()   { return QStringLiteral("DataType:DeviceSearchType=QString"); }
inline QString devicePassword()     { return QStringLiteral("DataType:DevicePassword=QString"); }
inline QString roomNumber()         { return QStringLiteral("DataType:RoomNumber=int"); }
inline QString positionList()       { return QStringLiteral("DataType:PositionList=QList<QPoint>"); }
inline QString sceneNumber()        { return QStringLiteral("DataType::SceneNumber=int"); }
inline QString roomGroup()          { return QStringLiteral("DataType::RoomGroup=QString"); }
inline QString roomThumbnail()      { return QStringLiteral("DataType::RoomThumbnail=QPixmap"); }
inline QString deviceSetNumber()    { return QStringLiteral("DataType::DeviceSetNumber=int"); }
inline QString deviceSetRemove()    { return QStringLiteral("DataType::DeviceSetRemove=bool"); }
inline QString speakerPosition()    { return QStringLiteral("DataType::DeviceSetSpeakerPosition=QString"); }
inline QString presetName()         { return QStringLiteral("DataType::PresetName=QString"); }
inline QString presetFile()         { return QStringLiteral("DataType::PresetFile=QByteArray"); }
inline QString deviceIPList()       { return QStringLiteral("DataType::DeviceIPList=QStringList"); }
// clang-format on

} // namespace DataKey
