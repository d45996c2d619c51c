#include "devicetable.h"

#include "identifybutton.h"
#include "rowdelegate.h"

#include <QHeaderView>

#include <algorithm>

namespace {

constexpr int leastRowCount = 3;

} // namespace

DeviceTable::DeviceTable(const QStringList& headers, int addressColumn, QWidget* parent)
    : RowList(parent)
    , m_addressColumn(addressColumn)
{
    setHeaderLabels(headers);
    header()->setDefaultSectionSize(addressWidth());
    setRootIsDecorated(false);
    // Every row holds the same widgets. Rows of any height would all be measured, and the place of
    // each found by adding up those above it.
    setUniformRowHeights(true);
    setItemDelegate(new RowDelegate(this));
    header()->setSortIndicator(LabelColumn, Qt::AscendingOrder);
    connect(model(), SIGNAL(modelAboutToBeReset()), this, SLOT(forgetRows()));
    connect(model(), SIGNAL(layoutChanged()), this, SLOT(chainTabOrder()));
}

int DeviceTable::addressWidth() const
{
    return fontMetrics().horizontalAdvance(QStringLiteral(" 255.255.255.255 "));
}

QSize DeviceTable::minimumSizeHint() const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int rowHeight = itemDelegate()->sizeHint(option, QModelIndex()).height();
    const int height = header()->sizeHint().height() + leastRowCount * rowHeight + 2 * frameWidth();
    return QTreeWidget::minimumSizeHint().expandedTo({0, height});
}

void DeviceTable::setRows(const QList<QStringList>& rows, const Decorate& decorate)
{
    const bool sorted = isSortingEnabled();
    m_filling = true;
    setSortingEnabled(false);
    clear();
    addRows(rows);
    if (sorted) {
        sortItems(LabelColumn, Qt::AscendingOrder);
    }
    // Only now the widgets: each one added among rows still coming would lay all of them out.
    for (int index = 0; index < topLevelItemCount(); ++index) {
        addIdentifyButton(topLevelItem(index));
        if (decorate) {
            decorate(topLevelItem(index));
        }
    }
    setSortingEnabled(sorted);
    m_filling = false;
    chainTabOrder();
}

QTreeWidgetItem* DeviceTable::rowOf(const QString& ipAddress) const
{
    return m_rows.value(ipAddress).value(0);
}

QList<QTreeWidgetItem*> DeviceTable::rowsOf(const QString& ipAddress) const
{
    return m_rows.value(ipAddress);
}

void DeviceTable::setLabel(QTreeWidgetItem* row, const QString& label)
{
    row->setText(LabelColumn, label);
    row->setToolTip(LabelColumn, label);
    nameIdentifyButton(row);
}

QString DeviceTable::addressOf(const QTreeWidgetItem* row) const
{
    return row->text(m_addressColumn);
}

void DeviceTable::forgetRows()
{
    m_rows.clear();
}

void DeviceTable::chainTabOrder()
{
    if (m_filling) {
        return;
    }
    // Widgets made late would come after everything else in the window, and stay in the order of
    // their making when the rows are sorted anew.
    QList<QWidget*> stops;
    for (int index = 0; index < topLevelItemCount(); ++index) {
        stops.append(stopsIn(topLevelItem(index)));
    }
    // From the last one on, each right behind the table: what Qt looks at for a move is what stands
    // before the moved widget. From the first one on that would be all widgets that were passed
    // over, more with every row.
    std::reverse(stops.begin(), stops.end());
    for (QWidget* stop : std::as_const(stops)) {
        chain(this, stop);
    }
}

void DeviceTable::addRows(const QList<QStringList>& rows)
{
    QList<QTreeWidgetItem*> items;
    items.reserve(rows.size());
    for (const QStringList& texts : rows) {
        items.append(new QTreeWidgetItem(texts));
        items.last()->setToolTip(LabelColumn, texts.at(LabelColumn));
    }
    addTopLevelItems(items);
    for (QTreeWidgetItem* item : items) {
        m_rows[addressOf(item)].append(item);
    }
}

void DeviceTable::addIdentifyButton(QTreeWidgetItem* row)
{
    auto* button = new IdentifyButton(addressOf(row), this);
    connect(button, SIGNAL(clicked(QString)), this, SIGNAL(identifyClicked(QString)));
    setItemWidget(row, IdentifyColumn, button);
    row->setData(IdentifyColumn, Qt::AccessibleTextRole, tr("Identify"));
    nameIdentifyButton(row);
}

void DeviceTable::nameIdentifyButton(QTreeWidgetItem* row)
{
    itemWidget(row, IdentifyColumn)
        ->setAccessibleName(tr("Identify %1").arg(row->text(LabelColumn)));
}
