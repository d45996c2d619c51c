#include "networkdialog.h"

#include "dialogplace.h"
#include "emptylisttext.h"
#include "focusedcelldelegate.h"
#include "fontscale.h"
#include "readablecolors.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize minSize(400, 300);

enum Column
{
    NameColumn,
    AddressColumn,
    MaskColumn
};

/// The row where a key begins while none is selected; null for keys that lead to no row.
QTreeWidgetItem* beginning(const QTreeWidget& list, int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        return list.currentItem();
    case Qt::Key_Home:
    case Qt::Key_PageUp:
        return list.topLevelItem(0);
    case Qt::Key_End:
    case Qt::Key_PageDown:
        return list.topLevelItem(list.topLevelItemCount() - 1);
    default:
        return nullptr;
    }
}

} // namespace

NetworkDialog::NetworkDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("networkDialog"));
    setWindowTitle(tr("Select Network Interface Card"));
    createWidgets();
    buildLayout();
    connectWidgets();
    setMinimumSize(scaledToFont(minSize, this));
    new DialogPlace(this);
}

void NetworkDialog::fill(int preselectedIndex)
{
    fill(nicRows(systemInterfaces()), preselectedIndex);
}

void NetworkDialog::fill(const QList<NicRow>& rows, int preselectedIndex)
{
    m_indexOfRow.clear();
    m_nicList->clear();
    for (const NicRow& row : rows) {
        auto* const item = new QTreeWidgetItem(m_nicList, {row.name, row.address, row.mask});
        m_indexOfRow.insert(item, row.index);
        if (row.index == preselectedIndex) {
            m_nicList->setCurrentItem(item);
        }
    }
    if (!m_nicList->currentItem()) {
        // A row for the arrow keys to begin at, and no more than that.
        m_nicList->setCurrentItem(m_nicList->topLevelItem(0), NameColumn,
                                  QItemSelectionModel::NoUpdate);
    }
}

int NetworkDialog::selectedIndex() const
{
    const QList<QTreeWidgetItem*> selected = m_nicList->selectedItems();
    return selected.isEmpty() ? 0 : m_indexOfRow.value(selected.first());
}

bool NetworkDialog::eventFilter(QObject* watched, QEvent* event)
{
    // A key would step past the row that it begins at, and find no way on from the only one.
    if (event->type() == QEvent::KeyPress && m_nicList->selectedItems().isEmpty()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (QTreeWidgetItem* row = beginning(*m_nicList, key)) {
            m_nicList->setCurrentItem(row);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void NetworkDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        setMinimumSize(scaledToFont(minSize, this));
    }
    QDialog::changeEvent(event);
}

void NetworkDialog::selectedNicListItem()
{
    m_okButton->setEnabled(!m_nicList->selectedItems().isEmpty());
}

void NetworkDialog::createWidgets()
{
    buildList();
    m_okButton = new QPushButton(tr("OK"), this);
    m_okButton->setObjectName(QStringLiteral("okButton"));
    m_okButton->setDefault(true);
    m_okButton->setEnabled(false);
    m_cancelButton = new QPushButton(tr("Cancel"), this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
}

void NetworkDialog::buildList()
{
    m_nicList = new QTreeWidget(this);
    m_nicList->setObjectName(QStringLiteral("nicList"));
    m_nicList->setAccessibleName(tr("Network interfaces"));
    m_nicList->setRootIsDecorated(false);
    m_nicList->setHeaderLabels({tr("Name"), tr("IP Address"), tr("Subnet Mask")});
    m_nicList->header()->setStretchLastSection(false);
    m_nicList->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_nicList->header()->setSectionResizeMode(AddressColumn, QHeaderView::ResizeToContents);
    m_nicList->header()->setSectionResizeMode(MaskColumn, QHeaderView::ResizeToContents);
    m_nicList->installEventFilter(this);
    m_nicList->setFocus();
    m_nicList->setItemDelegate(new FocusedCellDelegate(m_nicList));
    new ReadableColors(m_nicList);
    new EmptyListText(m_nicList, tr("This computer has no wired network interface. Check that a "
                                    "network adapter is connected and switched on, then start "
                                    "again."));
}

void NetworkDialog::buildLayout()
{
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_okButton);
    buttons->addWidget(m_cancelButton);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_nicList);
    layout->addLayout(buttons);
}

void NetworkDialog::connectWidgets()
{
    connect(m_nicList, SIGNAL(itemSelectionChanged()), this, SLOT(selectedNicListItem()));
    connect(m_okButton, SIGNAL(clicked()), this, SLOT(accept()));
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(reject()));
}
