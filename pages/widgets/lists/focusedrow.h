#pragma once

#include <QModelIndex>
#include <QObject>

class QTreeWidget;
class QWidget;

/// Keeps the row in sight that the keyboard is in: when a widget of a row gets the focus by key,
/// its row becomes current and the list scrolls to it.
///
/// Lists do that themselves only for a widget that fills its cell, not for the parts that such a
/// widget may consist of, and only while its row is not the current one yet. Without it Tab and
/// Space would press what nobody sees.
///
/// Up and Down in a button are the list's.
class FocusedRow : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `list`.
    explicit FocusedRow(QTreeWidget* list);

    /// `stop` is the widget of a cell or a part of it; it may be watched already.
    void watch(QWidget* stop);

    /// The cell that a widget stands in or is a part of; invalid when it is in none of the list's.
    QModelIndex cellOf(const QWidget* stop) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(const QWidget* stop);

    QTreeWidget* m_list;
};
