#pragma once

#include <QList>
#include <QVariantMap>

class IDocAccessor;

/// What a document holds of devices, rooms, layouts, device sets and presets, as plain values: two
/// are equal when the documents held the same. Page and window size are no part of it, nor are the
/// layouts' pictures, which follow from rooms and layouts.
using EnteredWork = QList<QVariantMap>;

/// Takes it down. The document stays as it is.
EnteredWork enteredWork(IDocAccessor& doc);
