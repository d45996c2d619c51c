#include "sessionqueries.h"

#include "datakey.h"
#include "datakind.h"
#include "idocaccessor.h"

namespace {

QVariant read(IDocAccessor& doc, int kind, const QString& key)
{
    QVariantMap data;
    doc.getData(kind, data);
    return data.value(key);
}

} // namespace

int nicIndex(IDocAccessor& doc)
{
    return read(doc, DataKind::NicIndex, DataKey::nicIndex()).toInt();
}

void setNicIndex(IDocAccessor& doc, int index)
{
    doc.setData(DataKind::NicIndex, {{DataKey::nicIndex(), index}});
}

bool isNicHandedOver(IDocAccessor& doc)
{
    QVariantMap data{{DataKey::isNicHandedOver(), false}};
    doc.getData(DataKind::NicIndex, data);
    return data.value(DataKey::isNicHandedOver()).toBool();
}

int pageIndex(IDocAccessor& doc)
{
    return read(doc, DataKind::PageIndex, DataKey::index()).toInt();
}

void setPageIndex(IDocAccessor& doc, int index)
{
    doc.setData(DataKind::PageIndex, {{DataKey::index(), index}});
}

QSize windowSize(IDocAccessor& doc)
{
    return read(doc, DataKind::WindowSize, DataKey::size()).toSize();
}

void setWindowSize(IDocAccessor& doc, const QSize& size)
{
    doc.setData(DataKind::WindowSize, {{DataKey::size(), size}});
}
