#include "createpreset.h"

#include "halllimits.h"
#include "plaintooltip.h"
#include "presetqueries.h"
#include "roomgrouplist.h"
#include "textlabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int numberWidth = 15;
constexpr int layoutWidth = 25;
constexpr int roomWidth = 100;
constexpr int gapBelowTexts = 10;
constexpr int textMargin = 6;

enum Column
{
    NameColumn = RoomGroupList::RoomColumn + 1
};

/// Screen readers hear from the cell what its field shows.
void describeName(QTreeWidgetItem* row, const QString& name)
{
    row->setData(NameColumn, Qt::AccessibleTextRole, name);
}

} // namespace

PresetNameEdit::PresetNameEdit(const QString& name, QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("presetNameEdit"));
    setMaxLength(HallLimits::maxPresetNameLength);
    setText(name);
    setCursorPosition(0);
    connect(this, SIGNAL(textChanged(QString)), this, SLOT(tellHiddenText()));
}

void PresetNameEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    tellHiddenText();
}

/// What the field has no room for is seen nowhere else.
void PresetNameEdit::tellHiddenText()
{
    const bool isWhole = fontMetrics().horizontalAdvance(text()) < width() - 2 * textMargin;
    setToolTip(isWhole ? QString() : plainToolTip(text()));
}

CreatePreset::CreatePreset(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
{
    createWidgets();
    buildLayout();
    connect(m_groupList, SIGNAL(itemSelectionChanged()), this, SLOT(deviceSetSelected()));
}

void CreatePreset::createWidgets()
{
    m_groupList = new RoomGroupList({tr("No."), tr("Layout"), tr("Rooms"), tr("Preset Names")},
                                    {numberWidth, layoutWidth, roomWidth}, this);
    m_groupList->setObjectName(QStringLiteral("roomGroupList"));
    m_thumbnail = new QLabel(this);
    m_thumbnail->setObjectName(QStringLiteral("thumbnailLabel"));
    m_thumbnail->setAccessibleName(tr("Selected layout"));
}

void CreatePreset::buildLayout()
{
    auto* listColumn = new QVBoxLayout;
    listColumn->addWidget(titleLabel(tr("Select a room combination"), m_groupList));
    listColumn->addWidget(m_groupList);

    auto* row = new QHBoxLayout;
    row->addWidget(m_thumbnail, 0, Qt::AlignTop);
    row->addLayout(listColumn, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(
        textLabel(tr("Each room combination will be configured as a preset on the PX-HBs."), this));
    layout->addWidget(textLabel(tr("Please provide a name for the preset."), this));
    layout->addSpacing(gapBelowTexts);
    layout->addLayout(row, 1);
}

void CreatePreset::load()
{
    m_groups = roomGroups(doc());
    m_groupList->setGroups(m_groups);
    addNameFields();
    m_groupList->selectGroup(0);
    deviceSetSelected();
}

void CreatePreset::addNameFields()
{
    m_nameFields.clear();
    QWidget* previous = m_groupList;
    for (qsizetype index = 0; index < m_groups.size(); ++index) {
        PresetNameEdit* field = nameField(m_groups.at(index));
        m_groupList->setItemWidget(m_groupList->topLevelItem(int(index)), NameColumn, field);
        describeName(m_groupList->topLevelItem(int(index)), field->text());
        connect(field, SIGNAL(textChanged(QString)), this, SLOT(nameChanged(QString)));
        // Fields made after the page's buttons would be reached after them.
        m_groupList->chain(previous, field);
        previous = field;
        m_nameFields.append(field);
    }
}

PresetNameEdit* CreatePreset::nameField(const RoomGroup& group)
{
    const auto name = presetName(doc(), group.number, group.sceneNumber);
    auto* field = new PresetNameEdit(name.value_or(QString()), m_groupList);
    field->setAccessibleName(tr("Preset name of rooms %1 in layout %2")
                                 .arg(group.roomText(), QString::number(group.sceneNumber)));
    return field;
}

void CreatePreset::store()
{
    clearPresets(doc());
    for (qsizetype index = 0; index < m_groups.size(); ++index) {
        const RoomGroup& group = m_groups.at(index);
        addPreset(doc(), group.number, group.sceneNumber, m_nameFields.at(index)->text());
    }
}

void CreatePreset::reset()
{
    for (PresetNameEdit* field : std::as_const(m_nameFields)) {
        field->clear();
    }
}

void CreatePreset::nameChanged(const QString& name)
{
    const qsizetype index = m_nameFields.indexOf(qobject_cast<PresetNameEdit*>(sender()));
    if (index >= 0) {
        describeName(m_groupList->topLevelItem(int(index)), name);
    }
}

void CreatePreset::deviceSetSelected()
{
    // Beyond the groups when none is current, or while the list is being replaced.
    m_thumbnail->setPixmap(m_groups.value(m_groupList->currentGroup()).thumbnail);
}
