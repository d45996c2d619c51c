#pragma once

#include "basepage.h"
#include "picturetext.h"

/// The closing advice once the presets are installed: the content of the last page.
class WellDone : public PictureText
{
    Q_OBJECT

public:
    explicit WellDone(QWidget* parent);
};

/// Step 9: the closing advice. There is no way back from here.
class PageFinish : public BasePage
{
    Q_OBJECT

public:
    PageFinish(IPageController* controller, IDocAccessor* doc, QWidget* parent);

private Q_SLOTS:
    void closeButtonClicked();
};
