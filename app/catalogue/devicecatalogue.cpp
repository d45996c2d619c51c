#include "devicecatalogue.h"

#include <algorithm>
#include <array>

namespace {

using enum DeviceClass;
using enum ModelTest;

// A beginning stands behind the longer ones that it is part of: the first line that fits counts.
// A variant of the hub counts as a hub, but only the hub itself goes without a file: a variant in
// the set of another hub gets one like every peripheral. The wireless access point carries
// microphones and is counted as one.
constexpr std::array catalogue = {
    DeviceModel{u"PX-HB", BeginsWith, Hub, u"2", 0, Equals},
    DeviceModel{u"PX-DL", BeginsWith, Microphone, u"2"},
    DeviceModel{u"PX-BK", BeginsWith, Microphone, u"2"},
    DeviceModel{u"PX-NDE", BeginsWith, Microphone, u"1.9.3", 1},
    DeviceModel{u"PX-", BeginsWith, Other, u"2"},
    DeviceModel{u"LQA4-08S", Equals, Speaker, u"2"},
    DeviceModel{u"DSK4M", Equals, Speaker, u"2"},
    DeviceModel{u"PNB-QE7", Equals, Controller, u"2"},
};

bool fits(QStringView model, ModelTest test, QStringView text)
{
    switch (test) {
    case Equals:
        return model == text;
    case BeginsWith:
        return model.startsWith(text);
    case Never:
        break;
    }
    return false;
}

} // namespace

std::span<const DeviceModel> deviceCatalogue()
{
    return catalogue;
}

const DeviceModel* findModel(QStringView model)
{
    const auto line =
        std::find_if(catalogue.begin(), catalogue.end(), [model](const DeviceModel& candidate) {
            return fits(model, candidate.test, candidate.text);
        });
    return line != catalogue.end() ? &*line : nullptr;
}

bool hasOwnFile(QStringView model)
{
    const DeviceModel* known = findModel(model);
    return known == nullptr || !fits(model, known->withoutFile, known->text);
}

int nameMode(QStringView model)
{
    const DeviceModel* known = findModel(model);
    return known != nullptr ? known->nameMode : 0;
}
