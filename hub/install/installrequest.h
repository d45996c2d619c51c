#pragma once

#include <QString>

/// The texts of the requests that only an installation sends. `address` is the hub's, `token` the
/// one it handed out; see httprequest.h for the requests that others send as well.
namespace InstallRequest {

/// Gives the hub its first password; `digest` is passwordDigest() of it.
QString validate(const QString& address, const QString& token, const QString& digest);

/// Has the hub export its own configuration.
QString startExport(const QString& address, const QString& token);

/// Asks for the exported configuration.
QString fetchExport(const QString& address, const QString& token);

/// Makes preset `number` with this name, which may hold anything.
QString presetEntry(const QString& address, const QString& token, int number, const QString& name);

/// Stores an XML file in preset `number` under a storage name.
QString presetFile(const QString& address, const QString& token, int number,
                   const QString& storageName, const QString& file);

/// Makes a preset the current one.
QString recall(const QString& address, const QString& token, int number);

} // namespace InstallRequest

/// `text` as it stands between the quotes of a JSON body: every backslash is doubled, every double
/// quote gets a backslash. Nothing else is touched; hubs take all other characters as they are.
QString escapedForJson(const QString& text);
