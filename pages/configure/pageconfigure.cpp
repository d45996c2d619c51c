#include "pageconfigure.h"

#include "configure.h"

PageConfigure::PageConfigure(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("5. Select the Devices for each combined rooms"), 5, controller, doc, parent)
    , m_content(new Configure(doc, this))
{
    buildFrame(m_content, LeftButton::Back);
    connect(m_content, SIGNAL(nextButtonEnabled(bool)), this, SLOT(setNextButtonEnabled(bool)));
}

void PageConfigure::load()
{
    m_content->initialise();
}

void PageConfigure::store()
{
    m_content->store();
}

void PageConfigure::reset()
{
    m_content->reset();
}
