#include "pagecreatescene.h"

#include "createscene.h"

namespace {

constexpr int createScenePageNumber = 4;

} // namespace

PageCreateScene::PageCreateScene(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("4. Create room layouts"), createScenePageNumber, controller, doc, parent)
    , m_content(new CreateScene(*doc, this))
{
    buildFrame(m_content, LeftButton::Back);
    connect(m_content, SIGNAL(nextButtonEnabled(bool)), this, SLOT(setNextButtonEnabled(bool)));
    setNextButtonEnabled(false);
}

void PageCreateScene::load()
{
    m_content->initialise();
}

void PageCreateScene::store()
{
    m_content->store();
}

void PageCreateScene::reset()
{
    m_content->reset();
}
