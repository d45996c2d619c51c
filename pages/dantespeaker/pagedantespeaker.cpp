#include "pagedantespeaker.h"

#include "dantespeaker.h"

PageDanteSpeaker::PageDanteSpeaker(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("6. Assign the speaker locations for each room combination"), 6, controller, doc,
               parent)
    , m_content(new DanteSpeaker(doc, this))
{
    buildFrame(m_content, LeftButton::Back);
}

void PageDanteSpeaker::load()
{
    m_content->initialise();
}

void PageDanteSpeaker::store()
{
    m_content->store();
}

void PageDanteSpeaker::reset()
{
    m_content->reset();
}
