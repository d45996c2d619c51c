#pragma once

#include "stepcontent.h"

class QVBoxLayout;
class RoomGroupPanels;

/// Content of the device set step: every combined room of every layout, with a panel for choosing
/// its devices. Combined rooms with more devices than a conference system supports are listed in
/// red, and the step cannot be left forward while there is one.
class Configure : public StepContent
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the content.
    explicit Configure(IDocAccessor* doc, QWidget* parent = nullptr);

    /// Builds list and panels anew from the document; earlier removals are taken over.
    void load() override;

    /// Replaces the stored device sets by the ones shown.
    void store() override;

    /// Takes every removed device back into its set; the document stays as it is.
    void reset() override;
    QStringList missing() const override { return m_missing; }

public Q_SLOTS:
    /// Shows the panel of the current row.
    void deviceSetSelected();
    /// Colours the rows by validity and tells whether the step may be left.
    void deviceRemoveStatusChanged();
    /// The same without a change in validity.
    void faultsChanged();

private:
    void buildLayout();
    void addTexts(QVBoxLayout* layout);

    RoomGroupPanels* m_panels;
    QStringList m_missing;
};
