#pragma once

#include "idocaccessor.h"

#include <QHash>
#include <QStringList>

/// A document that holds only what an installation reads, the same for every hub.
class FakePresets : public IDocAccessor
{
public:
    QStringList names;                           ///< of the presets, from preset 1
    QHash<int, QStringList> devices;             ///< addresses placed with the hub, by preset
    QHash<QString, QString> deviceFiles;         ///< by address; the MAC is made of the address
    int unreadableKind = 0;                      ///< getData of this kind fails
    static QByteArray hubFile(int presetNumber); ///< the hub's file, one for each preset
    static QString macOf(const QString& ipAddress);

    bool setData(int kind, const QVariantMap& data) override;
    bool getData(int kind, QVariantMap& data) override;
    bool clearData(int kind) override;
    bool addData(int kind, const QVariantMap& data) override;
    bool doAction(int kind, const QVariantMap& data) override;
    bool getDataList(int kind, const QVariantMap& selector, QList<QVariantMap>& list) override;
    bool saveResume(const QString& path) override;
    bool loadResume(const QString& path) override;

private:
    bool readPreset(int kind, QVariantMap& data) const;
    bool readDeviceFile(QVariantMap& data) const;
};
