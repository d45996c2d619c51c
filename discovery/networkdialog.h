#pragma once

#include "nicrows.h"

#include <QDialog>
#include <QHash>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// Lets the user choose the wired network interface on which devices are searched. Run modally;
/// the choice counts when the dialog is accepted. Where there is none it says what to check.
class NetworkDialog : public QDialog
{
    Q_OBJECT

public:
    explicit NetworkDialog(QWidget* parent);

    /// Lists the computer's wired interfaces and selects the one with the given system index;
    /// selects none when the index is 0 or no longer exists.
    void fill(int preselectedIndex);

    /// The same for given rows.
    void fill(const QList<NicRow>& rows, int preselectedIndex);

    /// The system index of the selected interface; 0 when none is selected.
    int selectedIndex() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void selectedNicListItem();

private:
    void createWidgets();
    void buildList();
    void buildLayout();
    void connectWidgets();

    QTreeWidget* m_nicList = nullptr;
    QPushButton* m_okButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QHash<QTreeWidgetItem*, int> m_indexOfRow;
};
