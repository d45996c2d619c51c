#pragma once

#include "basepage.h"
#include "picturetext.h"

class QPushButton;

/// What the wizard is for: the content of the first page.
class Introduction : public PictureText
{
    Q_OBJECT

public:
    explicit Introduction(QWidget* parent);
};

/// Step 1: tells what the wizard does.
class PageIntroduction : public BasePage
{
    Q_OBJECT

public:
    PageIntroduction(IPageController* controller, IDocAccessor* doc, QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void nextButtonClicked();
    void closeButtonClicked();

private:
    QPushButton* m_nextButton;
};
