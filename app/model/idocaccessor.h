#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

/// The only way to the wizard's data. The document implements it; pages, senders and the window
/// receive it by pointer and never own it.
///
/// Every operation takes a data kind (DataKind) and values packed in a map under fixed key texts
/// (DataKey). All return true when done and false when refused or not found: a missing required
/// key, an unknown kind, an index out of range, a record not found or already present. On false
/// the data is unchanged. Nothing is thrown and no text is reported. Values of a wrong type count
/// as their conversion's default. All calls come from the GUI thread.
///
/// Pages do not pack keys themselves; they use the typed queries beside this header
/// (devicequeries.h, roomqueries.h, layoutqueries.h, setqueries.h, presetqueries.h).
class IDocAccessor
{
public:
    /// Writes a value or replaces a record that exists (a room: or adds it).
    /// Kinds NicIndex, PageIndex, WindowSize, Device, RoomInfo, Scene, DeviceSet.
    virtual bool setData(int kind, const QVariantMap& data) = 0;

    /// Reads. The caller puts the selector keys into `data`; results are added to the same map
    /// and replace entries of the same key. Every kind but Room and Identify.
    virtual bool getData(int kind, QVariantMap& data) = 0;

    /// Empties lists. Kinds Room (rooms and layouts), Scene, DeviceSet, Preset.
    virtual bool clearData(int kind) = 0;

    /// Appends one record, never replacing one. Kinds Device, Scene, DeviceSet, Preset.
    virtual bool addData(int kind, const QVariantMap& data) = 0;

    /// Starts something; its outcome is not reported here. Kind Identify only.
    virtual bool doAction(int kind, const QVariantMap& data) = 0;

    /// Appends one map per record that matches the selector to `list`, in document order.
    /// Kinds Device, DeviceSet, Preset.
    virtual bool getDataList(int kind, const QVariantMap& selector, QList<QVariantMap>& list) = 0;

    /// Writes all data to the resume file at `path`. False when it could not be written; an
    /// earlier file is then left whole.
    virtual bool saveResume(const QString& path) = 0;

    /// Reads the resume file at `path`. False when it is no readable resume file or names a
    /// placed device that is not there now; the data may then hold a part of the file.
    virtual bool loadResume(const QString& path) = 0;

    IDocAccessor() = default;
    IDocAccessor(const IDocAccessor&) = delete;
    IDocAccessor& operator=(const IDocAccessor&) = delete;
    IDocAccessor(IDocAccessor&&) = delete;
    IDocAccessor& operator=(IDocAccessor&&) = delete;
    virtual ~IDocAccessor() = default;
};
