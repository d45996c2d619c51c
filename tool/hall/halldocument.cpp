#include "halldocument.h"

#include "kindoperations.h"

#include <utility>

HallDocument::HallDocument(DocumentData data)
    : m_data(std::move(data))
{
}

bool HallDocument::setData(int kind, const QVariantMap& data)
{
    const auto set = operationsOf(kind).set;
    return set != nullptr && set(m_data, data);
}

bool HallDocument::getData(int kind, QVariantMap& data)
{
    const auto get = operationsOf(kind).get;
    return get != nullptr && get(m_data, data);
}

bool HallDocument::clearData(int kind)
{
    const auto clear = operationsOf(kind).clear;
    if (clear == nullptr) {
        return false;
    }
    clear(m_data);
    return true;
}

bool HallDocument::addData(int kind, const QVariantMap& data)
{
    const auto add = operationsOf(kind).add;
    return add != nullptr && add(m_data, data);
}

bool HallDocument::getDataList(int kind, const QVariantMap& selector, QList<QVariantMap>& list)
{
    const auto getList = operationsOf(kind).list;
    return getList != nullptr && getList(m_data, selector, list);
}

bool HallDocument::doAction(int /*kind*/, const QVariantMap& /*data*/)
{
    return false;
}

bool HallDocument::saveResume(const QString& /*path*/)
{
    return false;
}

bool HallDocument::loadResume(const QString& /*path*/)
{
    return false;
}
