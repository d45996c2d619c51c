#include "pageroomdesign.h"

#include "roomdesign.h"

namespace {

constexpr int roomDesignPageNumber = 2;

} // namespace

PageRoomDesign::PageRoomDesign(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("2. Room Design"), roomDesignPageNumber, controller, doc, parent)
    , m_content(new RoomDesign(*doc, this))
{
    buildFrame(m_content, LeftButton::Close);
    connect(m_content, SIGNAL(nextButtonEnabled(bool)), this, SLOT(setNextButtonEnabled(bool)));
    setNextButtonEnabled(false);
}

void PageRoomDesign::load()
{
    m_content->load();
}

void PageRoomDesign::store()
{
    m_content->store();
}

void PageRoomDesign::reset()
{
    m_content->reset();
}
