#include "speakerposition.h"

#include "deviceclass.h"
#include "devicetable.h"
#include "listcombobox.h"
#include "roomdevices.h"
#include "setqueries.h"
#include "textlabel.h"

#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int addressColumn = 3;
constexpr int positionColumn = 5;

constexpr std::array<std::pair<int, int>, 6> columnWidths = {
    {{0, 200}, {1, 25}, {2, 70}, {4, 50}, {5, 60}, {6, 20}}};

constexpr QLatin1String left("L");
constexpr QLatin1String right("R");

} // namespace

SpeakerPosition::SpeakerPosition(RoomGroup group, IDocAccessor* doc, QWidget* parent)
    : QWidget(parent)
    , m_group(std::move(group))
    , m_doc(doc)
{
}

void SpeakerPosition::fill(RoomDevices& devices)
{
    for (const DeviceEntry& device : devices.in(m_group.rooms)) {
        if (deviceClass(device.modelName) != DeviceClass::Speaker) {
            continue;
        }
        const DeviceSetInfo record =
            deviceSetRecord(*m_doc, m_group.number, m_group.sceneNumber, device.ipAddress)
                .value_or(DeviceSetInfo());
        if (!record.remove) {
            const bool isRight = record.speakerPosition == right;
            m_speakers.append({device, isRight ? right : left});
        }
    }
}

void SpeakerPosition::buildList(QWidget* previous)
{
    if (m_speakerTable == nullptr) {
        createWidgets();
        buildLayout();
        // The buttons and boxes in the rows chain themselves behind the list when the rows come.
        setTabOrder(previous, m_speakerTable);
        addRows();
    }
}

void SpeakerPosition::createWidgets()
{
    m_speakerTable = new DeviceTable({tr("Hostname"), QString(), tr("Model"), tr("IP Address"),
                                      tr("Room"), tr("Position"), QString()},
                                     addressColumn, this);
    m_speakerTable->setObjectName(QStringLiteral("speakerTable"));
    m_speakerTable->setAccessibleName(tr("Speaker Position"));
    for (const auto& [column, width] : columnWidths) {
        m_speakerTable->setColumnWidth(column, width);
    }
    m_speakerTable->setSortingEnabled(true);
    connect(m_speakerTable, SIGNAL(identifyClicked(QString)), this,
            SLOT(identifyButtonClicked(QString)));
}

void SpeakerPosition::buildLayout()
{
    auto* thumbnail = new QLabel(this);
    thumbnail->setObjectName(QStringLiteral("thumbnailLabel"));
    thumbnail->setAccessibleName(tr("Layout %1").arg(m_group.sceneNumber));
    thumbnail->setPixmap(m_group.thumbnail);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(thumbnail);
    layout->addWidget(titleLabel(tr("Speaker Position"), m_speakerTable));
    layout->addWidget(m_speakerTable, 1);
}

void SpeakerPosition::addRows()
{
    QList<QStringList> rows;
    QHash<QString, qsizetype> indexes;
    for (qsizetype index = 0; index < m_speakers.size(); ++index) {
        const DeviceEntry& device = m_speakers.at(index).device;
        rows.append({device.label, QString(), device.modelName, device.ipAddress,
                     QString::number(device.roomNumber)});
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
    combo->setAccessibleName(tr("Position of %1").arg(speaker.device.label));
    combo->addItems({left, right});
    combo->setCurrentText(speaker.position);
    m_speakerTable->setItemWidget(row, positionColumn, combo);
    m_combos.insert(combo, index);
    connect(combo, SIGNAL(currentTextChanged(QString)), this, SLOT(positionChosen(QString)));
}

void SpeakerPosition::positionChosen(const QString& position)
{
    const auto combo = m_combos.constFind(qobject_cast<QComboBox*>(sender()));
    if (combo != m_combos.cend()) {
        m_speakers[*combo].position = position;
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

void SpeakerPosition::store() const
{
    for (const auto& [device, position] : m_speakers) {
        setSpeakerPosition(*m_doc, m_group.number, m_group.sceneNumber, device.ipAddress, position);
    }
}

void SpeakerPosition::identifyButtonClicked(const QString& ip)
{
    identifyDevice(*m_doc, ip);
}
