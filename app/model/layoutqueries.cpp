#include "layoutqueries.h"

#include "datakey.h"
#include "datakind.h"
#include "idocaccessor.h"

int layoutCount(IDocAccessor& doc)
{
    QVariantMap data;
    doc.getData(DataKind::SceneCount, data);
    return data.value(DataKey::count()).toInt();
}

std::optional<SceneInfo> layoutAt(IDocAccessor& doc, int number)
{
    QVariantMap data{{DataKey::sceneNumber(), number}};
    if (!doc.getData(DataKind::Scene, data)) {
        return std::nullopt;
    }
    return SceneInfo{number, data.value(DataKey::roomGroup()).toString(),
                     data.value(DataKey::roomThumbnail()).value<QPixmap>()};
}

bool addLayout(IDocAccessor& doc, const SceneInfo& layout)
{
    return doc.addData(DataKind::Scene, {{DataKey::sceneNumber(), layout.number},
                                         {DataKey::roomGroup(), layout.roomGroup},
                                         {DataKey::roomThumbnail(), layout.thumbnail}});
}

void clearLayouts(IDocAccessor& doc)
{
    doc.clearData(DataKind::Scene);
}
