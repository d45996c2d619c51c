#pragma once

#include <QString>

struct DeviceCounts;
struct DocumentData;
struct MemberView;
struct RoomGroup;

// What is said of a hall, for people.

/// The counts of a room beside their limits; in a room microphones and speakers count by themselves
/// as well as together.
QString roomCountWords(const DeviceCounts& counts);

/// The counts of a combined room beside their limits.
QString setCountWords(const DeviceCounts& counts);

/// How a device is used in a combined room: "removed", of a speaker its side, else nothing.
QString useWords(const MemberView& member);

/// Why a combined room lists no devices.
QString emptinessWords(const RoomGroup& group, const DocumentData& hall);
