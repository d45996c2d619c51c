#pragma once

#include "steppage.h"

class DanteSpeaker;

/// Frame of the speaker position step.
class PageDanteSpeaker : public StepPage
{
    Q_OBJECT

public:
    PageDanteSpeaker(IPageController* controller, IDocAccessor* doc, QWidget* parent);

protected:
    void load() override;
    void store() override;
    void reset() override;

private:
    DanteSpeaker* m_content;
};
