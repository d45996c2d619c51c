#pragma once

#include "steppage.h"

class CreatePreset;

/// Frame of the preset naming step.
class PageCreatePreset : public StepPage
{
    Q_OBJECT

public:
    PageCreatePreset(IPageController* controller, IDocAccessor* doc, QWidget* parent);

protected:
    void load() override;
    void store() override;
    void reset() override;

private:
    CreatePreset* m_content;
};
