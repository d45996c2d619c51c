#pragma once

#include "basepage.h"

/// Step 9: the closing advice. There is no way back from here.
class PageFinish : public BasePage
{
    Q_OBJECT

public:
    PageFinish(IPageController* controller, IDocAccessor* doc, QWidget* parent);

private Q_SLOTS:
    void closeButtonClicked();
};
