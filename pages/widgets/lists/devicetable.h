#pragma once

#include "rowlist.h"

#include <QHash>

#include <functional>

/// A table of devices: one row per device with its label in column 0, an identify button in
/// column 1 and its IP address in a column that the page names; the address finds the row again.
/// To screen readers a cell says what its widget shows: whoever adds widgets sees to theirs.
class DeviceTable : public RowList
{
    Q_OBJECT

public:
    using Decorate = std::function<void(QTreeWidgetItem* row)>;

    /// The first columns; the others are the page's.
    enum Column
    {
        LabelColumn,
        IdentifyColumn
    };

    /// The table has one column per header, each wide enough for an address until the page sets
    /// another width.
    DeviceTable(const QStringList& headers, int addressColumn, QWidget* parent = nullptr);

    /// Replaces all rows; each holds the texts of its columns, column 1 empty. With sorting
    /// enabled the rows are then in ascending order of column 0, otherwise in the order given.
    ///
    /// `decorate` is called once per row, in the order in which the rows are shown and with all
    /// of them there, for the texts and the item widgets that only the page knows. Sorting is off
    /// meanwhile. The cost is linear in the rows, shown or not.
    void setRows(const QList<QStringList>& rows, const Decorate& decorate = {});

    /// High enough for a few rows.
    QSize minimumSizeHint() const override;

    /// The first row of the device with this address; null when there is none.
    QTreeWidgetItem* rowOf(const QString& ipAddress) const;

    /// Every row of this address, in the order in which they were given.
    QList<QTreeWidgetItem*> rowsOf(const QString& ipAddress) const;

    /// Renames the device of a row. With sorting enabled that may move the row.
    void setLabel(QTreeWidgetItem* row, const QString& label);

    QString addressOf(const QTreeWidgetItem* row) const;

Q_SIGNALS:
    /// A row's identify button was pressed.
    void identifyClicked(const QString& ipAddress);

private Q_SLOTS:
    void forgetRows();
    void chainTabOrder();

private:
    int addressWidth() const;
    void addRows(const QList<QStringList>& rows);
    void addIdentifyButton(QTreeWidgetItem* row);
    void nameIdentifyButton(QTreeWidgetItem* row);

    QHash<QString, QList<QTreeWidgetItem*>> m_rows; ///< by address
    int m_addressColumn;
    bool m_filling = false; ///< the tab order waits for all rows
};
