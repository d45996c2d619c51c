#pragma once

#include "idocaccessor.h"

#include <QList>
#include <QObject>

#include <memory>

struct Configuration;
struct DocumentData;
struct SavedDevice;

/// The wizard's one document: network interface, devices, rooms, layouts, device sets, presets.
/// It lives from program start to exit; everybody else sees it as IDocAccessor.
///
/// What each data kind does stands in the functions that operationsOf() lists, grouped by subject.
class TesselDoc : public QObject, public IDocAccessor
{
    Q_OBJECT

public:
    /// Starts with the interface and the devices that the program's arguments hand over.
    explicit TesselDoc(QObject* parent);
    TesselDoc(const TesselDoc&) = delete;
    TesselDoc& operator=(const TesselDoc&) = delete;
    TesselDoc(TesselDoc&&) = delete;
    TesselDoc& operator=(TesselDoc&&) = delete;
    ~TesselDoc() override;

    bool setData(int kind, const QVariantMap& data) override;
    bool getData(int kind, QVariantMap& data) override;
    bool clearData(int kind) override;
    bool addData(int kind, const QVariantMap& data) override;
    bool doAction(int kind, const QVariantMap& data) override;
    bool getDataList(int kind, const QVariantMap& selector, QList<QVariantMap>& list) override;
    bool saveResume(const QString& path) override;
    bool loadResume(const QString& path) override;

    /// Takes the work of a file into this document, but for placed devices that are not there:
    /// these are returned, and nobody is told.
    QList<SavedDevice> takeOver(const Configuration& configuration);

private:
    std::unique_ptr<DocumentData> m_data;
};
