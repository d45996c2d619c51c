#pragma once

#include <QList>
#include <QWidget>

class IDocAccessor;
class QStackedWidget;
class RoomGroupList;
class RoomGroupPanels;
class SpeakerPosition;

/// Content of the speaker position step: every combined room of every layout, with a panel that
/// tells for each of its loudspeakers whether it stands on the left or on the right.
class DanteSpeaker : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the widget.
    DanteSpeaker(IDocAccessor* doc, QWidget* parent);

    /// Builds list and panels anew from the document; stored positions are taken over.
    void initialise();

    /// Writes every position into its device set record.
    void store() const;

    /// Puts every speaker of every panel to the left.
    void reset();

public Q_SLOTS:
    /// Shows the panel of the current row.
    void deviceSetSelected();

private:
    void layOut();
    void addPanels();

    IDocAccessor* m_doc;
    RoomGroupPanels* m_panelsView;
    RoomGroupList* m_groupList;
    QStackedWidget* m_stack;
    QList<SpeakerPosition*> m_panels; ///< one per row, in list order; owned by the stack
};
