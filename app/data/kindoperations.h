#pragma once

#include <QList>
#include <QVariantMap>

struct DocumentData;

/// What one data kind does under each operation of IDocAccessor; null where it does nothing. The
/// functions follow the accessor's rules: true = done, false = refused or not found and the data
/// unchanged.
struct KindOperations
{
    bool (*set)(DocumentData& doc, const QVariantMap& data) = nullptr;
    bool (*get)(const DocumentData& doc, QVariantMap& data) = nullptr;
    void (*clear)(DocumentData& doc) = nullptr;
    bool (*add)(DocumentData& doc, const QVariantMap& data) = nullptr;
    bool (*list)(const DocumentData& doc, const QVariantMap& selector,
                 QList<QVariantMap>& list) = nullptr;
};

/// The operations of a kind; none at all for a number that is no kind.
const KindOperations& operationsOf(int kind);
