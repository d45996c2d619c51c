#include "speakerposition.h"

#include "deviceclass.h"
#include "devicetable.h"
#include "emptylisttext.h"
#include "listcombobox.h"
#include "roomdevices.h"
#include "setqueries.h"
#include "textlabel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr QLatin1String left("L");
constexpr QLatin1String right("R");

} // namespace

SpeakerPosition::SpeakerPosition(const RoomGroup& group, RoomDevices& devices, IDocAccessor* doc,
                                 QWidget* parent)
    : RoomGroupPanel(group, doc, parent)
{
    for (const DeviceEntry& device : devices.in(group.rooms)) {
        if (deviceClass(device.modelName) == DeviceClass::Speaker) {
            addSpeaker(device);
        }
    }
}

void SpeakerPosition::addSpeaker(const DeviceEntry& device)
{
    const DeviceSetInfo record =
        deviceSetRecord(doc(), group().number, group().sceneNumber, device.ipAddress)
            .value_or(DeviceSetInfo());
    if (!record.remove) {
        const bool isRight = record.speakerPosition == right;
        m_speakers.append({device, isRight ? right : left});
    }
}

void SpeakerPosition::createLists(QWidget* previous)
{
    m_speakerTable =
        createTable(QStringLiteral("speakerTable"), tr("Speaker Position"), tr("Position"));
    new EmptyListText(m_speakerTable, tr("No speaker is used here: none stands here, or all were "
                                         "removed in step 5."));
    buildLayout();
    // The buttons and boxes in the rows chain themselves behind the list when the rows come.
    setTabOrder(previous, m_speakerTable);
    addRows();
}

void SpeakerPosition::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(createThumbnail());
    layout->addWidget(titleLabel(tr("Speaker Position"), m_speakerTable));
    layout->addWidget(m_speakerTable, 1);
}

void SpeakerPosition::addRows()
{
    QList<QStringList> rows;
    QHash<QString, qsizetype> indexes;
    for (qsizetype index = 0; index < m_speakers.size(); ++index) {
        const DeviceEntry& device = m_speakers.at(index).device;
        rows.append(rowTexts(device));
        indexes.insert(device.ipAddress, index);
    }
    m_speakerTable->setRows(rows, [this, &indexes](QTreeWidgetItem* row) {
        addCombo(row, indexes.value(m_speakerTable->addressOf(row)));
    });
}

void SpeakerPosition::addCombo(QTreeWidgetItem* row, qsizetype index)
{
    const Speaker& speaker = m_speakers.at(index);
    auto* combo = new ListComboBox(m_speakerTable);
    combo->setObjectName(QStringLiteral("positionCombo"));
    combo->setPurpose(tr("Position of %1").arg(speaker.device.label));
    combo->addItems({left, right});
    combo->setCurrentText(speaker.position);
    m_speakerTable->setItemWidget(row, ChoiceColumn, combo);
    describeChoice(row, speaker.position);
    m_combos.insert(combo, {row, index});
    connect(combo, SIGNAL(currentTextChanged(QString)), this, SLOT(positionChosen(QString)));
}

/// The cell says what its box shows.
void SpeakerPosition::describeChoice(QTreeWidgetItem* row, const QString& position)
{
    row->setData(ChoiceColumn, Qt::AccessibleTextRole, position);
}

void SpeakerPosition::positionChosen(const QString& position)
{
    const auto combo = m_combos.constFind(qobject_cast<QComboBox*>(sender()));
    if (combo != m_combos.cend()) {
        m_speakers[combo->index].position = position;
        describeChoice(combo->row, position);
    }
}

void SpeakerPosition::reset()
{
    for (Speaker& speaker : m_speakers) {
        speaker.position = left;
    }
    for (auto combo = m_combos.cbegin(); combo != m_combos.cend(); ++combo) {
        combo.key()->setCurrentIndex(0);
    }
}

void SpeakerPosition::store()
{
    for (const auto& [device, position] : std::as_const(m_speakers)) {
        setSpeakerPosition(doc(), group().number, group().sceneNumber, device.ipAddress, position);
    }
}
