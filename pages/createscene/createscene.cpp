#include "createscene.h"

#include "columnwidths.h"
#include "focusedcelldelegate.h"
#include "halllimits.h"
#include "layoutqueries.h"
#include "layoutthumbnail.h"
#include "roomqueries.h"
#include "rowlist.h"
#include "sceneitem.h"
#include "tessel.h"
#include "textlabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int numberWidth = 15;
constexpr QSize rowSize(66, 66);

enum Column
{
    NumberColumn,
    LayoutColumn
};

int numberOf(const QTreeWidgetItem* row)
{
    return row->text(NumberColumn).toInt();
}

void setNumber(QTreeWidgetItem* row, int number)
{
    row->setText(NumberColumn, QString::number(number));
}

} // namespace

CreateScene::CreateScene(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
    , m_tessel(new Tessel(this, layoutGeometry.gap, layoutGeometry.cellSize, false))
{
    createWidgets();
    buildLayout();
    connect(m_addButton, SIGNAL(clicked()), this, SLOT(addButtonClicked()));
}

void CreateScene::load()
{
    m_tessel->clearAll();
    clearList();
    loadRooms();
    loadLayouts();
    updateButtons();
}

void CreateScene::store()
{
    clearLayouts(doc());
    for (int index = 0; index < m_list->topLevelItemCount(); ++index) {
        QTreeWidgetItem* row = m_list->topLevelItem(index);
        const SceneItem* item = itemOf(row);
        addLayout(doc(), {numberOf(row), item->roomGroup(), item->thumbnail()});
    }
}

void CreateScene::reset()
{
    clearLayouts(doc());
    clearList();
    updateButtons();
}

QStringList CreateScene::missing() const
{
    return m_rows.isEmpty() ? QStringList{tr("Add one room layout or more.")} : QStringList();
}

void CreateScene::addButtonClicked()
{
    const QString roomGroup = m_tessel->roomGroupText();
    if (QTreeWidgetItem* row = rowOf(roomGroup)) {
        m_list->setCurrentItem(row);
        QMessageBox::information(this, tr("Confirmation"),
                                 tr("This room combination already exists."), QMessageBox::Ok);
        return;
    }
    const QPixmap thumbnail = layoutThumbnail(m_tessel->renderThumbnail());
    appendRow({m_list->topLevelItemCount() + 1, roomGroup, thumbnail});
    m_list->scrollToBottom();
    updateButtons();
    Q_EMIT announced(tr("Layout %1 was added: %2.").arg(QString::number(m_rows.size()), roomGroup));
}

void CreateScene::removeButtonClicked()
{
    auto* item = qobject_cast<SceneItem*>(sender());
    const auto found = m_rows.constFind(item);
    if (found == m_rows.cend()) {
        return;
    }
    QTreeWidgetItem* removed = *found;
    m_rows.erase(found);
    for (QTreeWidgetItem* row : std::as_const(m_rows)) {
        if (numberOf(row) > numberOf(removed)) {
            setNumber(row, numberOf(row) - 1);
        }
    }
    QTreeWidgetItem* next = item->tabStop()->hasFocus() ? passFocusOn(removed) : nullptr;
    delete removed;
    if (next) {
        m_list->scrollToItem(next);
    }
    updateButtons();
}

/// Whoever removes by key stays in the list. Left to itself, the focus would go on to the buttons
/// below, where the next press of Space leaves the page. Returns the row that has it now, if any.
QTreeWidgetItem* CreateScene::passFocusOn(QTreeWidgetItem* row)
{
    QTreeWidgetItem* below = m_list->itemBelow(row);
    QTreeWidgetItem* neighbour = below ? below : m_list->itemAbove(row);
    if (neighbour) {
        m_list->setCurrentItem(neighbour);
        itemOf(neighbour)->tabStop()->setFocus();
    } else {
        m_addButton->setFocus();
    }
    return neighbour;
}

void CreateScene::createWidgets()
{
    m_tessel->setObjectName(QStringLiteral("tessel"));
    m_addButton = new QPushButton(tr("Add Layout"), this);
    m_addButton->setObjectName(QStringLiteral("addLayoutButton"));
    m_list = new RowList(this);
    m_list->setObjectName(QStringLiteral("layoutList"));
    m_list->setAccessibleName(tr("Room layouts"));
    m_list->setHeaderLabels({tr("No."), tr("Layout")});
    m_list->setRootIsDecorated(false);
    m_list->setItemDelegate(new FocusedCellDelegate(m_list));
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    new ColumnWidths(m_list, {{NumberColumn, numberWidth}});
}

void CreateScene::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textLabel(
        tr("Check the grey room link box to identify combined rooms in a room layout."), this));
    layout->addWidget(textLabel(tr("Same colors identify rooms that are combined, different "
                                   "colors identify separate rooms."),
                                this));
    layout->addWidget(textLabel(tr("Once a room layout is complete, click the Add Layout button "
                                   "to add that room layout. Up to 10 room layouts can be "
                                   "defined."),
                                this));
    auto* row = new QHBoxLayout;
    layout->addLayout(row, 1);
    auto* picker = new QHBoxLayout;
    picker->addWidget(m_tessel);
    picker->addWidget(m_addButton);
    auto* pickerAtTop = new QVBoxLayout;
    pickerAtTop->addLayout(picker);
    pickerAtTop->addStretch();
    row->addLayout(pickerAtTop);
    row->addWidget(m_list, 1);
}

void CreateScene::loadRooms()
{
    for (const RoomInfo& room : drawnRooms(doc())) {
        m_tessel->setRoom(room.number, room.positionList);
    }
    m_tessel->createLinkButtons();
    m_tessel->update();
}

void CreateScene::loadLayouts()
{
    const int count = layoutCount(doc());
    for (int number = 1; number <= count; ++number) {
        if (const auto layout = layoutAt(doc(), number)) {
            appendRow(*layout);
        }
    }
}

void CreateScene::clearList()
{
    m_rows.clear();
    m_list->clear();
}

void CreateScene::appendRow(const SceneInfo& layout)
{
    QWidget* above = lastTabStop();
    auto* row = new QTreeWidgetItem(m_list);
    setNumber(row, layout.number);
    row->setSizeHint(LayoutColumn, rowSize);
    row->setData(LayoutColumn, Qt::AccessibleTextRole, tr("Layout %1").arg(layout.roomGroup));
    auto* item = new SceneItem(layout.thumbnail, layout.roomGroup);
    connect(item, SIGNAL(removeClicked()), this, SLOT(removeButtonClicked()));
    m_list->setItemWidget(row, LayoutColumn, item);
    m_list->chain(above, item->tabStop());
    m_rows.insert(item, row);
}

QWidget* CreateScene::lastTabStop() const
{
    if (m_rows.isEmpty()) {
        return m_list;
    }
    return itemOf(m_list->topLevelItem(m_list->topLevelItemCount() - 1))->tabStop();
}

SceneItem* CreateScene::itemOf(QTreeWidgetItem* row) const
{
    return static_cast<SceneItem*>(m_list->itemWidget(row, LayoutColumn));
}

QTreeWidgetItem* CreateScene::rowOf(const QString& roomGroup) const
{
    for (auto row = m_rows.cbegin(); row != m_rows.cend(); ++row) {
        if (row.key()->roomGroup() == roomGroup) {
            return row.value();
        }
    }
    return nullptr;
}

void CreateScene::updateButtons()
{
    const int rows = m_list->topLevelItemCount();
    m_addButton->setEnabled(rows < HallLimits::maxLayoutCount);
    Q_EMIT nextButtonEnabled(rows >= 1);
}
