#pragma once

#include "savedwork.h"

#include <QStringView>

#include <tuple>

// The names in the XML text of a resume file, each written once: writing and reading follow them.

/// The root, with everything else inside.
namespace ResumeRoot {

inline constexpr QStringView element = u"Tessel";
inline constexpr QStringView page = u"Page"; ///< attribute: an index of WizardPage

} // namespace ResumeRoot

/// One attribute of an element: its name, and where in the record its value stands.
template <typename Record, typename Value>
struct ResumeField
{
    QStringView name;
    Value Record::*member;
};

template <typename Record, typename Value>
constexpr ResumeField<Record, Value> resumeField(QStringView name, Value Record::*member)
{
    return {name, member};
}

/// How records of one type look in the file; writing and reading both follow it.
template <typename Record, typename... Values>
struct ResumeForm
{
    QStringView list; ///< the element around all of them; empty for what there is one of
    QStringView element;
    std::tuple<ResumeField<Record, Values>...> fields; ///< in file order
};

template <typename Record, typename... Values>
constexpr ResumeForm<Record, Values...> resumeForm(QStringView list, QStringView element,
                                                   ResumeField<Record, Values>... fields)
{
    return {list, element, {fields...}};
}

/// The form of each type that is saved.
template <typename Record>
inline constexpr auto formOf = nullptr;

template <>
inline constexpr auto formOf<SavedDevice> = resumeForm(
    u"DeviceDataList", u"DeviceData", resumeField(u"Label", &SavedDevice::label),
    resumeField(u"IP", &SavedDevice::ipAddress),
    resumeField(u"MacAddress", &SavedDevice::macAddress),
    resumeField(u"Model", &SavedDevice::modelName), resumeField(u"Room", &SavedDevice::roomNumber),
    resumeField(u"ModifiedLabel", &SavedDevice::labelModified));

template <>
inline constexpr auto formOf<RoomInfo> = resumeForm(u"RoomInfoList", u"RoomInfo",
                                                    resumeField(u"Number", &RoomInfo::number),
                                                    resumeField(u"PosList",
                                                                &RoomInfo::positionList));

template <>
inline constexpr auto formOf<SceneInfo> = resumeForm(u"SceneInfoList", u"SceneInfo",
                                                     resumeField(u"Number", &SceneInfo::number),
                                                     resumeField(u"RoomGroup",
                                                                 &SceneInfo::roomGroup));

template <>
inline constexpr auto formOf<DeviceSetInfo> = resumeForm(
    u"DeviceSetInfoList", u"DeviceSetInfo",
    resumeField(u"DeviceSetNumber", &DeviceSetInfo::deviceSetNumber),
    resumeField(u"SceneNumber", &DeviceSetInfo::sceneNumber),
    resumeField(u"IP", &DeviceSetInfo::ipAddress), resumeField(u"Remove", &DeviceSetInfo::remove),
    resumeField(u"SpeakerPosition", &DeviceSetInfo::speakerPosition));

template <>
inline constexpr auto
    formOf<PresetInfo> = resumeForm(u"PresetInfoList", u"PresetInfo",
                                    resumeField(u"DeviceSetNumber", &PresetInfo::deviceSetNumber),
                                    resumeField(u"SceneNumber", &PresetInfo::sceneNumber),
                                    resumeField(u"PresetName", &PresetInfo::presetName));

/// The size of the window as the file has it.
struct WindowSides
{
    int width = 0;
    int height = 0;
};

template <>
inline constexpr auto formOf<WindowSides> = resumeForm(QStringView(), u"WindowSize",
                                                       resumeField(u"Width", &WindowSides::width),
                                                       resumeField(u"Height",
                                                                   &WindowSides::height));
