#pragma once

#include <QVariantMap>

struct DocumentData;

/// The three single values: network interface, page and window size.
namespace SessionKinds {

bool setNicIndex(DocumentData& doc, const QVariantMap& data);
bool getNicIndex(const DocumentData& doc, QVariantMap& data);
bool setPageIndex(DocumentData& doc, const QVariantMap& data);
bool getPageIndex(const DocumentData& doc, QVariantMap& data);
bool setWindowSize(DocumentData& doc, const QVariantMap& data);
bool getWindowSize(const DocumentData& doc, QVariantMap& data);

} // namespace SessionKinds
