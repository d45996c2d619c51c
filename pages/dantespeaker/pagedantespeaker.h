#pragma once

#include "steppage.h"

/// Frame of the speaker position step.
class PageDanteSpeaker : public StepPage
{
    Q_OBJECT

public:
    PageDanteSpeaker(IPageController* controller, IDocAccessor* doc, QWidget* parent);
};
