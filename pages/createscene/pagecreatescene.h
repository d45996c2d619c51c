#pragma once

#include "steppage.h"

/// The frame of step 4. Going back stores nothing: layouts live in the list until Next.
class PageCreateScene : public StepPage
{
    Q_OBJECT

public:
    PageCreateScene(IPageController* controller, IDocAccessor* doc, QWidget* parent);
};
