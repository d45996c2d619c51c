#pragma once

#include "steppage.h"

/// The frame of step 2. The first step that can be left unfinished: its left button closes.
class PageRoomDesign : public StepPage
{
    Q_OBJECT

public:
    PageRoomDesign(IPageController* controller, IDocAccessor* doc, QWidget* parent);
};
