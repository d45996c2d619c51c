#pragma once

#include "savedwork.h"

#include <QStringView>

#include <array>
#include <variant>

// The names in the XML text of a resume file, each written once: writing and reading follow them.

/// The root, with everything else inside.
namespace ResumeRoot {

inline constexpr QStringView element = u"Tessel";
inline constexpr QStringView page = u"Page"; ///< attribute: an index of WizardPage

} // namespace ResumeRoot

/// One attribute of an element: its name, and where in the record its value stands.
template <typename Record>
struct ResumeField
{
    QStringView name;
    std::variant<int Record::*, bool Record::*, QString Record::*, QList<QPoint> Record::*> member;
};

/// How records of one type look in the file; writing and reading both follow it.
template <typename Record, std::size_t count>
struct ResumeForm
{
    QStringView list; ///< the element around all of them; empty for what there is one of
    QStringView element;
    std::array<ResumeField<Record>, count> fields; ///< in file order
};

template <typename Record, std::size_t count>
constexpr ResumeForm<Record, count> resumeForm(QStringView list, QStringView element,
                                               const ResumeField<Record> (&fields)[count])
{
    return {list, element, std::to_array(fields)};
}

/// The form of each type that is saved.
template <typename Record>
inline constexpr auto formOf = nullptr;

template <>
inline constexpr auto formOf<SavedDevice> =
    resumeForm<SavedDevice>(u"DeviceDataList", u"DeviceData",
                            {{u"Label", &SavedDevice::label},
                             {u"IP", &SavedDevice::ipAddress},
                             {u"MacAddress", &SavedDevice::macAddress},
                             {u"Model", &SavedDevice::modelName},
                             {u"Room", &SavedDevice::roomNumber},
                             {u"ModifiedLabel", &SavedDevice::labelModified}});

template <>
inline constexpr auto formOf<RoomInfo> =
    resumeForm<RoomInfo>(u"RoomInfoList", u"RoomInfo",
                         {{u"Number", &RoomInfo::number}, {u"PosList", &RoomInfo::positionList}});

template <>
inline constexpr auto formOf<SceneInfo> =
    resumeForm<SceneInfo>(u"SceneInfoList", u"SceneInfo",
                          {{u"Number", &SceneInfo::number}, {u"RoomGroup", &SceneInfo::roomGroup}});

template <>
inline constexpr auto formOf<DeviceSetInfo> =
    resumeForm<DeviceSetInfo>(u"DeviceSetInfoList", u"DeviceSetInfo",
                              {{u"DeviceSetNumber", &DeviceSetInfo::deviceSetNumber},
                               {u"SceneNumber", &DeviceSetInfo::sceneNumber},
                               {u"IP", &DeviceSetInfo::ipAddress},
                               {u"Remove", &DeviceSetInfo::remove},
                               {u"SpeakerPosition", &DeviceSetInfo::speakerPosition}});

template <>
inline constexpr auto
    formOf<PresetInfo> = resumeForm<PresetInfo>(u"PresetInfoList", u"PresetInfo",
                                                {{u"DeviceSetNumber", &PresetInfo::deviceSetNumber},
                                                 {u"SceneNumber", &PresetInfo::sceneNumber},
                                                 {u"PresetName", &PresetInfo::presetName}});

/// The size of the window as the file has it.
struct WindowSides
{
    int width = 0;
    int height = 0;
};

template <>
inline constexpr auto formOf<WindowSides> =
    resumeForm<WindowSides>(QStringView(), u"WindowSize",
                            {{u"Width", &WindowSides::width}, {u"Height", &WindowSides::height}});
