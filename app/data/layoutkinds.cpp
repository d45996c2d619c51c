#include "kinds.h"

#include "datakey.h"
#include "documentdata.h"

#include <algorithm>
#include <optional>

namespace {

auto hasNumber(int number)
{
    return [number](const SceneInfo& scene) { return scene.number == number; };
}

/// A whole layout; nothing when one of its keys is missing.
std::optional<SceneInfo> unpack(const QVariantMap& data)
{
    if (!data.contains(DataKey::sceneNumber()) || !data.contains(DataKey::roomGroup()) ||
        !data.contains(DataKey::roomThumbnail())) {
        return std::nullopt;
    }
    return SceneInfo{data.value(DataKey::sceneNumber()).toInt(),
                     data.value(DataKey::roomGroup()).toString(),
                     data.value(DataKey::roomThumbnail()).value<QPixmap>()};
}

} // namespace

bool LayoutKinds::set(DocumentData& doc, const QVariantMap& data)
{
    const std::optional<SceneInfo> layout = unpack(data);
    if (!layout) {
        return false;
    }
    const auto stored =
        std::find_if(doc.scenes.begin(), doc.scenes.end(), hasNumber(layout->number));
    if (stored == doc.scenes.end()) {
        return false;
    }
    *stored = *layout;
    return true;
}

bool LayoutKinds::get(const DocumentData& doc, QVariantMap& data)
{
    if (!data.contains(DataKey::sceneNumber())) {
        return false;
    }
    const auto scene = std::find_if(doc.scenes.cbegin(), doc.scenes.cend(),
                                    hasNumber(data.value(DataKey::sceneNumber()).toInt()));
    if (scene == doc.scenes.cend()) {
        return false;
    }
    data.insert(DataKey::roomGroup(), scene->roomGroup);
    data.insert(DataKey::roomThumbnail(), scene->thumbnail);
    return true;
}

void LayoutKinds::clear(DocumentData& doc)
{
    doc.scenes.clear();
}

bool LayoutKinds::add(DocumentData& doc, const QVariantMap& data)
{
    const std::optional<SceneInfo> layout = unpack(data);
    if (!layout || std::any_of(doc.scenes.cbegin(), doc.scenes.cend(), hasNumber(layout->number))) {
        return false;
    }
    doc.scenes.append(*layout);
    return true;
}

bool LayoutKinds::count(const DocumentData& doc, QVariantMap& data)
{
    data.insert(DataKey::count(), int(doc.scenes.size()));
    return true;
}
