#pragma once

#include "stepcontent.h"

#include <QHash>
#include <QSet>

#include <memory>

class DeviceTable;
class InstallBarrier;
class PresetFileSender;
class QTreeWidgetItem;

/// Content of the installation step: the hubs that stand in rooms, each with the status of its
/// installation. All hubs are served at once; none gets files before every hub's log-in has been
/// answered.
class Install : public StepContent
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the content.
    explicit Install(IDocAccessor* doc, QWidget* parent = nullptr);
    ~Install() override;

    /// Lists the hubs anew. Installations that are under way go on and show as such.
    void load() override;

    /// Nothing: what is installed is kept by the hubs.
    void store() override {}

    /// Nothing: the user enters nothing here.
    void reset() override {}

    /// Installs the presets on every listed hub, also on those that are done already.
    void install();

    /// True while a listed hub is being installed that install() was called for since the list was
    /// made anew: a hub that prepares for ever must not keep the user from trying again.
    bool isBusy() const;

    /// True when hubs are listed and all are done.
    bool isDone() const;

    /// Says at every "Done", and in note() until the next installation, that the hall is kept in
    /// the file at this path.
    void tellKeptFile(const QString& path);

    /// While nothing can be installed, what is missing for it.
    QStringList missing() const override;

    /// What is to be said of the current hub or, when that is nothing, of the first one that there
    /// is something to say of: the reason of its "Error", or what it refused although it is "Done".
    /// Where all is well, the file that the hall is kept in, or nothing.
    QString note() const;

Q_SIGNALS:
    /// note() may have changed.
    void noteChanged();

    /// The status of a hub, listed or not, may have changed.
    void statusChanged();

public Q_SLOTS:
    /// Makes a device show itself.
    void identifyButtonClicked(const QString& ipAddress);
    /// Shows how the installation of the hub at `ipAddress` ended: 1 for success.
    void presetSendFinished(const QString& ipAddress, int status);
    /// Shows how far the transfer to the hub at `ipAddress` is.
    void senderProgressed(const QString& ipAddress);
    /// Starts the transfers once every hub's log-in is answered.
    void senderLogin();

private:
    void createWidgets();
    void buildLayout();
    void startSender(const QString& ipAddress, const QString& label);
    bool isRunning(const QString& ipAddress) const;
    QString status(int index) const;
    void announceStatus(const QString& ipAddress, const QString& text, const QString& reason);
    void setStatus(const QString& ipAddress, const QString& text);
    void setReason(const QString& ipAddress, const QString& reason);
    void explainStatus(const QString& ipAddress, const QString& words);
    QString noteOf(const QTreeWidgetItem* row) const;

    DeviceTable* m_hubTable = nullptr;
    QHash<QString, PresetFileSender*> m_senders; ///< by address; children of this widget
    std::unique_ptr<InstallBarrier> m_barrier;   ///< between their log-ins and their transfers
    QHash<QString, QString> m_reasons;           ///< by address: of an "Error", or of a refusal
    QString m_keptWords;                         ///< of tellKeptFile(); empty before
    QSet<QString> m_awaited;                     ///< addresses of the hubs that this list waits for
};
