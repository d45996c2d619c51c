#pragma once

#include "stepcontent.h"

class RoomGroupPanels;

/// Content of the speaker position step: every combined room of every layout, with a panel that
/// tells for each of its loudspeakers whether it stands on the left or on the right.
class DanteSpeaker : public StepContent
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the content.
    explicit DanteSpeaker(IDocAccessor* doc, QWidget* parent = nullptr);

    /// Builds list and panels anew from the document; stored positions are taken over.
    void load() override;

    /// Writes every position into its device set record.
    void store() override;

    /// Puts every speaker of every panel to the left.
    void reset() override;

public Q_SLOTS:
    /// Shows the panel of the current row.
    void deviceSetSelected();

private:
    void buildLayout();

    RoomGroupPanels* m_panels;
};
