#pragma once

#include "steppage.h"

class Configure;

/// Frame of the device set step.
class PageConfigure : public StepPage
{
    Q_OBJECT

public:
    PageConfigure(IPageController* controller, IDocAccessor* doc, QWidget* parent);

protected:
    void load() override;
    void store() override;
    void reset() override;

private:
    Configure* m_content;
};
