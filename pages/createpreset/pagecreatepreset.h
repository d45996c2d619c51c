#pragma once

#include "steppage.h"

/// Frame of the preset naming step.
class PageCreatePreset : public StepPage
{
    Q_OBJECT

public:
    PageCreatePreset(IPageController* controller, IDocAccessor* doc, QWidget* parent);
};
