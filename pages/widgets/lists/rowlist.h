#pragma once

#include <QPointer>
#include <QTreeWidget>

class FocusedRow;

/// A list whose rows hold widgets, for hands without a mouse.
///
/// Tab leads from the list into the widgets of its current row, and Shift+Tab from there back; the
/// row where the focus is becomes current and stays in sight. A key that a widget has no use for is
/// the list's: letters search in the first column, arrows lead to another row. The focus goes along
/// then, to the same widget of that row, so that it never stays in a row that is not the current
/// one.
class RowList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit RowList(QWidget* parent = nullptr);

    /// The row that the keyboard is in: that of the widget that has the focus, else the current
    /// one. Null without either.
    QTreeWidgetItem* rowInUse() const;

    /// Makes a row current. A focus in another row goes along.
    void goTo(QTreeWidgetItem* row);

    /// Makes the Tab key stop at `stop` right behind `previous`, and keeps its row in sight. The
    /// same stop may be chained anew.
    void chain(QWidget* previous, QWidget* stop);

protected:
    /// What the Tab key stops at in a row, from left to right, shown or not.
    QList<QWidget*> stopsIn(QTreeWidgetItem* row) const;

    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    bool enterRow();
    void beginAt(const QModelIndex& cell);
    void takeFocusAlong(const QModelIndex& left);

    FocusedRow* m_focusedRow;
    QPointer<QWidget> m_entry; ///< where Tab last came into a row from the list
};
