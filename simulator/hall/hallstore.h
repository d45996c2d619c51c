#pragma once

#include "hall.h"

#include <QMap>
#include <QObject>
#include <QString>

/// Writes what the devices of a hall hold into a folder, as it changes:
///
///     FOLDER/<address>/state.json
///     FOLDER/<hub address>/preset-<number>/entry.json
///     FOLDER/<hub address>/preset-<number>/<storage name>.xml
///
/// Everything that a request changed is written before its reply is sent. Secrets are never
/// written.
class HallStore : public QObject
{
    Q_OBJECT

public:
    /// The hall stays the caller's and must outlive the store.
    HallStore(const Hall& hall, const QString& folder, QObject* parent = nullptr);

    /// Writes everything for the first time, and changes from then on; what an earlier run left
    /// under the addresses of this hall is removed. False, with `error` in plain words, when the
    /// folder cannot be written.
    bool start(QString* error);

Q_SIGNALS:
    /// A file could not be written.
    void failed(const QString& address, const QString& text);

private Q_SLOTS:
    void writeDevice(const QString& address);

private:
    QMap<QString, QByteArray> contentsOf(const QString& address) const;
    bool writeChanges(const QString& address, QString* error);
    bool writeFile(const QString& path, const QByteArray& bytes, QString* error) const;
    void removeEarlier(const QString& address) const;

    const Hall& m_hall;
    QString m_folder;
    /// What stands on the disk, by address and path.
    QMap<QString, QMap<QString, QByteArray>> m_written;
};
