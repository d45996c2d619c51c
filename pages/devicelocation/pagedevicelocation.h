#pragma once

#include "steppage.h"

/// The frame of step 3. Going back stores as going on does, so that assignments survive a trip to
/// the room design.
class PageDeviceLocation : public StepPage
{
    Q_OBJECT

public:
    PageDeviceLocation(IPageController* controller, IDocAccessor* doc, QWidget* parent);

protected Q_SLOTS:
    void backButtonClicked() override;
};
