#pragma once

#include "documentdata.h"
#include "idocaccessor.h"

/// The records of a hall that nobody is looking at: what a file holds, reached the way the wizard's
/// parts reach theirs. It shows no message, asks no device and keeps no resume file.
class HallDocument : public IDocAccessor
{
public:
    HallDocument() = default;
    explicit HallDocument(DocumentData data);

    const DocumentData& data() const { return m_data; }
    DocumentData& data() { return m_data; }

    bool setData(int kind, const QVariantMap& data) override;
    bool getData(int kind, QVariantMap& data) override;
    bool clearData(int kind) override;
    bool addData(int kind, const QVariantMap& data) override;
    bool getDataList(int kind, const QVariantMap& selector, QList<QVariantMap>& list) override;

    /// These three are refused: no device is asked for anything, and files are read and written by
    /// hallfile.h.
    bool doAction(int kind, const QVariantMap& data) override;
    bool saveResume(const QString& path) override;
    bool loadResume(const QString& path) override;

private:
    DocumentData m_data;
};
