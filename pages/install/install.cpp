#include "install.h"

#include "columnwidths.h"
#include "devicequeries.h"
#include "devicetable.h"
#include "emptylisttext.h"
#include "installablehubs.h"
#include "installbarrier.h"
#include "installwords.h"
#include "presetfilesender.h"
#include "progressdelegate.h"
#include "textlabel.h"

#include <QDebug>
#include <QDir>
#include <QLabel>
#include <QSet>
#include <QVBoxLayout>

namespace {

constexpr int labelWidth = 250;
constexpr int identifyWidth = 25;
constexpr int gapBelowTexts = 20;
constexpr int sendSucceeded = 1;

enum Column
{
    AddressColumn = DeviceTable::IdentifyColumn + 1,
    StatusColumn
};

/// What is told of the hub of a row.
QString ofHub(const QTreeWidgetItem* row, const QString& words)
{
    return QStringLiteral("%1: %2").arg(row->text(DeviceTable::LabelColumn), words);
}

} // namespace

Install::Install(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
    , m_barrier(std::make_unique<InstallBarrier>())
{
    createWidgets();
    buildLayout();
    connect(m_hubTable, SIGNAL(identifyClicked(QString)), this,
            SLOT(identifyButtonClicked(QString)));
}

Install::~Install() = default;

void Install::identifyButtonClicked(const QString& ipAddress)
{
    identifyDevice(doc(), ipAddress);
}

void Install::install()
{
    m_keptWords.clear();
    // A status may be what the list is sorted by, so rows can move as soon as one is set.
    QList<std::pair<QString, QString>> hubs;
    for (int index = 0; index < m_hubTable->topLevelItemCount(); ++index) {
        const QTreeWidgetItem* row = m_hubTable->topLevelItem(index);
        const QString ipAddress = row->text(AddressColumn);
        if (!m_awaited.contains(ipAddress)) {
            hubs.append({ipAddress, row->text(DeviceTable::LabelColumn)});
        }
        m_awaited.insert(ipAddress); // a hub of two rows is known by its address
    }
    for (const auto& [ipAddress, label] : hubs) {
        announceStatus(ipAddress, tr("Installing..."), QString());
        setStatus(ipAddress, tr("Installing..."));
        setReason(ipAddress, QString());
        startSender(ipAddress, label);
    }
}

void Install::startSender(const QString& ipAddress, const QString& label)
{
    PresetFileSender*& sender = m_senders[ipAddress];
    if (sender == nullptr) {
        sender = new PresetFileSender(ipAddress, label, &doc(), this);
        m_barrier->add(sender->driver());
        connect(sender, SIGNAL(finished(QString, int)), this,
                SLOT(presetSendFinished(QString, int)));
        connect(sender, SIGNAL(progressed(QString)), this, SLOT(senderProgressed(QString)));
        connect(sender, SIGNAL(completedLogin()), this, SLOT(senderLogin()));
        connect(sender, SIGNAL(cancelledLogin()), this, SLOT(senderLogin()));
    }
    // The device may have been renamed since the sender was made.
    sender->setHostName(label);
    sender->start();
}

bool Install::isBusy() const
{
    return !m_awaited.isEmpty();
}

bool Install::isDone() const
{
    const int hubs = m_hubTable->topLevelItemCount();
    for (int index = 0; index < hubs; ++index) {
        if (status(index) != tr("Done")) {
            return false;
        }
    }
    return hubs > 0;
}

void Install::createWidgets()
{
    m_hubTable = new DeviceTable({tr("Hostname"), QString(), tr("IP Address"), tr("Status")},
                                 AddressColumn, this);
    m_hubTable->setObjectName(QStringLiteral("hubList"));
    m_hubTable->setAccessibleName(tr("PX-HB"));
    new ColumnWidths(m_hubTable, {{DeviceTable::LabelColumn, labelWidth},
                                  {DeviceTable::IdentifyColumn, identifyWidth}});
    m_hubTable->setSortingEnabled(true);
    new EmptyListText(m_hubTable, tr("No PX-HB stands in a room."));
    m_hubTable->setItemDelegateForColumn(StatusColumn, new ProgressDelegate(m_hubTable));
    connect(m_hubTable, SIGNAL(currentItemChanged(QTreeWidgetItem*, QTreeWidgetItem*)), this,
            SIGNAL(noteChanged()));
}

void Install::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textLabel(tr("Configure the presets on the PX-HBs."), this));
    layout->addWidget(
        textLabel(tr("The password for each PX-HB is required to install the presets."), this));
    layout->addSpacing(gapBelowTexts);
    layout->addWidget(titleLabel(tr("PX-HB"), m_hubTable));
    layout->addWidget(m_hubTable, 1);
}

void Install::load()
{
    QList<QStringList> rows;
    for (const DeviceEntry& hub : installableHubs(doc())) {
        rows.append({hub.label, QString(), hub.ipAddress,
                     isRunning(hub.ipAddress) ? tr("Installing...") : QString()});
    }
    m_reasons.clear();
    m_keptWords.clear();
    m_hubTable->setRows(rows);
    m_awaited.clear();
    for (auto sender = m_senders.cbegin(); sender != m_senders.cend(); ++sender) {
        senderProgressed(sender.key());
    }
    Q_EMIT noteChanged();
}

bool Install::isRunning(const QString& ipAddress) const
{
    const PresetFileSender* sender = m_senders.value(ipAddress);
    return sender != nullptr && sender->isRunning();
}

void Install::presetSendFinished(const QString& ipAddress, int status)
{
    const bool succeeded = status == sendSucceeded;
    if (!succeeded) {
        qDebug("Error!");
    }
    m_awaited.remove(ipAddress);
    const PresetFileSender* sender = m_senders.value(ipAddress);
    const QString reason = sender ? reasonWords(sender->outcome()) : QString();
    const QString text = succeeded ? tr("Done") : tr("Error");
    announceStatus(ipAddress, text, reason);
    setReason(ipAddress, reason);
    setStatus(ipAddress, text);
    Q_EMIT statusChanged();
    // A hub that failed before its log-in was answered must not hold the others back.
    senderLogin();
}

void Install::senderProgressed(const QString& ipAddress)
{
    const PresetFileSender* sender = m_senders.value(ipAddress);
    if (sender == nullptr || !sender->isRunning() || sender->progress().filesToStore == 0) {
        return;
    }
    const InstallProgress progress = sender->progress();
    explainStatus(ipAddress, progressWords(progress));
    for (QTreeWidgetItem* row : m_hubTable->rowsOf(ipAddress)) {
        row->setData(StatusColumn, ProgressDelegate::partRole,
                     double(progress.filesStored) / progress.filesToStore);
    }
}

void Install::senderLogin()
{
    m_barrier->goOn();
}

QString Install::status(int index) const
{
    return m_hubTable->topLevelItem(index)->text(StatusColumn);
}

/// Before anything of it is shown: what of it is shown elsewhere too need not be told again.
void Install::announceStatus(const QString& ipAddress, const QString& text, const QString& reason)
{
    const QTreeWidgetItem* row = m_hubTable->rowOf(ipAddress);
    if (row != nullptr && row->text(StatusColumn) != text) {
        Q_EMIT announced(reason.isEmpty() ? ofHub(row, text)
                                          : text + QStringLiteral(". ") + ofHub(row, reason));
    }
}

void Install::setStatus(const QString& ipAddress, const QString& text)
{
    for (QTreeWidgetItem* row : m_hubTable->rowsOf(ipAddress)) {
        row->setText(StatusColumn, text);
    }
}

/// A reason takes the place of what was told of the progress; without one nothing is told.
void Install::setReason(const QString& ipAddress, const QString& reason)
{
    const bool isNew = m_reasons.value(ipAddress) != reason;
    m_reasons.insert(ipAddress, reason);
    explainStatus(ipAddress, reason);
    for (QTreeWidgetItem* row : m_hubTable->rowsOf(ipAddress)) {
        row->setData(StatusColumn, ProgressDelegate::partRole, QVariant());
    }
    if (isNew && !reason.isEmpty()) {
        qDebug().noquote() << ipAddress + QStringLiteral(": ") + reason;
    }
    Q_EMIT noteChanged();
}

void Install::explainStatus(const QString& ipAddress, const QString& words)
{
    for (QTreeWidgetItem* row : m_hubTable->rowsOf(ipAddress)) {
        row->setToolTip(StatusColumn, words);
        row->setData(StatusColumn, Qt::AccessibleDescriptionRole, words);
    }
}

void Install::tellKeptFile(const QString& path)
{
    m_keptWords = tr("The hall is kept in %1").arg(QDir::toNativeSeparators(path));
    for (int index = 0; index < m_hubTable->topLevelItemCount(); ++index) {
        const QString address = m_hubTable->topLevelItem(index)->text(AddressColumn);
        const QString reason = m_reasons.value(address);
        explainStatus(address,
                      reason.isEmpty() ? m_keptWords : reason + QLatin1Char('\n') + m_keptWords);
    }
    Q_EMIT noteChanged();
}

QStringList Install::missing() const
{
    return m_hubTable->topLevelItemCount() > 0
               ? QStringList()
               : QStringList{tr("No PX-HB stands in a room: there is nothing to install.")};
}

QString Install::note() const
{
    const QTreeWidgetItem* current = m_hubTable->currentItem();
    if (current != nullptr && !noteOf(current).isEmpty()) {
        return noteOf(current);
    }
    for (int index = 0; index < m_hubTable->topLevelItemCount(); ++index) {
        QString note = noteOf(m_hubTable->topLevelItem(index));
        if (!note.isEmpty()) {
            return note;
        }
    }
    return m_keptWords;
}

QString Install::noteOf(const QTreeWidgetItem* row) const
{
    const QString reason = m_reasons.value(row->text(AddressColumn));
    return reason.isEmpty() ? QString() : ofHub(row, reason);
}
