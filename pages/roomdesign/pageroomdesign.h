#pragma once

#include "steppage.h"

class RoomDesign;

/// The frame of step 2. The first step that can be left unfinished: its left button closes.
class PageRoomDesign : public StepPage
{
    Q_OBJECT

public:
    PageRoomDesign(IPageController* controller, IDocAccessor* doc, QWidget* parent);

protected:
    void load() override;
    void store() override;
    void reset() override;

private:
    RoomDesign* m_content;
};
