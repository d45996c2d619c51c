#pragma once

/// The data kinds of IDocAccessor: what an operation addresses.
namespace DataKind {

inline constexpr int NicIndex = 1;      ///< index of the chosen network interface
inline constexpr int PageIndex = 2;     ///< WizardPage shown when the work was saved
inline constexpr int WindowSize = 3;    ///< window size when the work was saved
inline constexpr int DeviceCount = 4;   ///< number of device records (read only)
inline constexpr int Device = 5;        ///< one device record
inline constexpr int Room = 6;          ///< all rooms, and the layouts made of them (clear only)
inline constexpr int RoomCount = 7;     ///< highest room number present (read only)
inline constexpr int RoomInfo = 8;      ///< one room record
inline constexpr int Scene = 9;         ///< one room layout
inline constexpr int SceneCount = 10;   ///< number of room layouts (read only)
inline constexpr int DeviceSet = 11;    ///< one device's membership in one combined room
inline constexpr int Preset = 12;       ///< one preset
inline constexpr int PresetFile = 13;   ///< a hub's generated preset file
inline constexpr int DeviceIPList = 14; ///< the peripherals placed with a hub in one layout
inline constexpr int DevicePresetFile = 15; ///< a peripheral's generated preset file
inline constexpr int Identify = 16;         ///< make one device show itself (action)

} // namespace DataKind
