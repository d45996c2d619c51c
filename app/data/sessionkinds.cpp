#include "kinds.h"

#include "datakey.h"
#include "documentdata.h"

bool SessionKinds::setNicIndex(DocumentData& doc, const QVariantMap& data)
{
    if (!data.contains(DataKey::nicIndex())) {
        return false;
    }
    doc.nicIndex = data.value(DataKey::nicIndex()).toInt();
    return true;
}

bool SessionKinds::getNicIndex(const DocumentData& doc, QVariantMap& data)
{
    data.insert(DataKey::nicIndex(), doc.nicIndex);
    if (data.contains(DataKey::isNicHandedOver())) {
        data.insert(DataKey::isNicHandedOver(), doc.isNicHandedOver);
    }
    return true;
}

bool SessionKinds::setPageIndex(DocumentData& doc, const QVariantMap& data)
{
    if (!data.contains(DataKey::index())) {
        return false;
    }
    doc.pageIndex = data.value(DataKey::index()).toInt();
    return true;
}

bool SessionKinds::getPageIndex(const DocumentData& doc, QVariantMap& data)
{
    data.insert(DataKey::index(), doc.pageIndex);
    return true;
}

bool SessionKinds::setWindowSize(DocumentData& doc, const QVariantMap& data)
{
    if (!data.contains(DataKey::size())) {
        return false;
    }
    doc.windowSize = data.value(DataKey::size()).toSize();
    return true;
}

bool SessionKinds::getWindowSize(const DocumentData& doc, QVariantMap& data)
{
    data.insert(DataKey::size(), doc.windowSize);
    return true;
}
