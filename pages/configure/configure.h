#pragma once

#include <QList>
#include <QWidget>

class DeviceSet;
class IDocAccessor;
class QStackedWidget;
class QVBoxLayout;
class RoomGroupList;
class RoomGroupPanels;

/// Content of the device set step: every combined room of every layout, with a panel for choosing
/// its devices. Combined rooms with more devices than a conference system supports are listed in
/// red, and the step cannot be left forward while there is one.
class Configure : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the widget.
    Configure(IDocAccessor* doc, QWidget* parent);

    /// Builds list and panels anew from the document; earlier removals are taken over.
    void initialise();

    /// Replaces the stored device sets by the ones shown.
    void store() const;

    /// Takes every removed device back into its set; the document stays as it is.
    void reset();

Q_SIGNALS:
    /// True when every set is supported.
    void nextButtonEnabled(bool enable);

public Q_SLOTS:
    /// Shows the panel of the current row.
    void deviceSetSelected();
    /// Colours the rows by validity and tells whether the step may be left.
    void deviceRemoveStatusChanged();

private:
    void layOut();
    void addTexts(QVBoxLayout* layout);
    void addSets();

    IDocAccessor* m_doc;
    RoomGroupPanels* m_panelsView;
    RoomGroupList* m_groupList;
    QStackedWidget* m_stack;
    QList<DeviceSet*> m_sets; ///< one per row, in list order; owned by the stack
};
