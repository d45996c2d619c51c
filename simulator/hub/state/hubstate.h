#pragma once

#include "halldescription.h"
#include "hubreply.h"
#include "hubrequest.h"
#include "hubtokens.h"

#include <QByteArray>
#include <QMap>

/// A preset as a hub holds it.
struct StoredPreset
{
    /// The entry, byte for byte as it was given.
    QByteArray entry = {};
    /// The preset files by storage name.
    QMap<QString, QByteArray> files = {};

    /// The preset's name.
    QString description() const;
};

/// The management interface of a hub as a state machine without sockets: a request in, a reply
/// out. It is as strict as a hub: no log-in before a password is set, a valid bearer token on
/// every call that needs or carries one, files only for presets that exist.
class HubState
{
public:
    static constexpr int maxPreset = 99;

    explicit HubState(const HubDescription& description);

    /// Carries out a routed request.
    HubReply handle(const HubRequest& request);

    /// What a restart forgets: tokens and a begun export. Presets and the password stay.
    void reboot();

    bool isInitialised() const { return !m_passwordHash.isEmpty(); }
    /// Successful log-ins so far.
    int logInCount() const { return m_logIns; }
    /// Calls that made the hub show itself.
    int identificationCount() const { return m_identifications; }
    /// The preset recalled last; 0: none.
    int recalledPreset() const { return m_recalledPreset; }
    /// The presets by their numbers.
    const QMap<int, StoredPreset>& presets() const { return m_presets; }

private:
    struct Rule;

    static const Rule* ruleFor(Exchange exchange);

    HubReply status(const HubRequest& request);
    HubReply token(const HubRequest& request);
    HubReply setPassword(const HubRequest& request);
    HubReply logIn(const HubRequest& request);
    HubReply startExport(const HubRequest& request);
    HubReply readExport(const HubRequest& request);
    HubReply presetEntry(const HubRequest& request);
    HubReply presetFile(const HubRequest& request);
    HubReply recall(const HubRequest& request);
    HubReply invalidate(const HubRequest& request);
    HubReply identification(const HubRequest& request);

    HubDescription m_description;
    HubTokens m_tokens;
    QByteArray m_passwordHash;
    /// Polls until a begun export is ready; nothing while none was begun.
    std::optional<int> m_pollsLeft;
    QMap<int, StoredPreset> m_presets;
    int m_recalledPreset = 0;
    int m_logIns = 0;
    int m_identifications = 0;
};
