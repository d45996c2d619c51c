#pragma once

#include "devicejudgement.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

class DeviceInfoReceiver;

/// How a single address behaves towards one who asks for it by name.
enum class ProbeResult
{
    Answers,     ///< the broadcast found it
    DirectOnly,  ///< answers a query of its own only: broadcasts are lost on the way
    TextOnly,    ///< answers text commands only
    RefusesText, ///< nobody there takes text commands
    Silent
};

/// One address that was asked by name, and what it told about itself by text commands alone.
struct Probe
{
    QString address = {};
    ProbeResult result = ProbeResult::Silent;
    QString deviceId = {};
    QString label = {};
    QString version = {};
    QString serialNumber = {};
    QString currentPreset = {};
};

/// A search as the wizard makes it, that also keeps what the wizard does not get to see. Afterwards
/// the addresses to probe that did not answer are asked by a query of their own and by text
/// commands.
class HallSearch : public QObject
{
    Q_OBJECT

public:
    /// `waitMs` is how long to wait for answers, once for all and once more for the probes.
    HallSearch(int interfaceIndex, int waitMs, const QStringList& probes,
               QObject* parent = nullptr);

    /// Begins; false when the port of discovery cannot be had, and then nothing more comes.
    bool start();

    /// All devices that answered, whatever way they were asked.
    QList<JudgedDevice> devices() const;

    /// The probes, in the order given.
    QList<Probe> probes() const;

Q_SIGNALS:
    /// Everyone has had the time to answer.
    void finished();

private Q_SLOTS:
    void noteAnswer(const QString& ipText);
    void noteIdentity(const QString& ipText);
    void noteAnnouncement(const QString& ipText);
    void noteText();
    void noteRefusal();
    void endBroadcast();
    void waitForHubs();

private:
    QList<SeenDevice> seen() const;
    bool isUndecided(const SeenDevice& device) const;
    void probe(const QString& address);
    ProbeResult resultOf(const QString& address) const;

    DeviceDetector m_detector;
    int m_waitMs;
    QStringList m_probes;
    QStringList m_answered; ///< in the order of their answers
    QSet<QString> m_byBroadcast;
    QSet<QString> m_identified;
    QSet<QString> m_announced;
    QHash<QString, DeviceInfoReceiver*> m_texts; ///< children; by address
    QSet<QString> m_toldByText;
    QSet<QString> m_refused;
};
