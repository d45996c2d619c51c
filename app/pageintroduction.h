#pragma once

#include "basepage.h"

/// Step 1: tells what the wizard does.
class PageIntroduction : public BasePage
{
    Q_OBJECT

public:
    PageIntroduction(IPageController* controller, IDocAccessor* doc, QWidget* parent);

private Q_SLOTS:
    void nextButtonClicked();
    void closeButtonClicked();
};
