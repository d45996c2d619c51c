#pragma once

#include "steppage.h"

/// Frame of the device set step.
class PageConfigure : public StepPage
{
    Q_OBJECT

public:
    PageConfigure(IPageController* controller, IDocAccessor* doc, QWidget* parent);
};
