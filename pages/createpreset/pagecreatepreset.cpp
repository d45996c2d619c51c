#include "pagecreatepreset.h"

#include "createpreset.h"

PageCreatePreset::PageCreatePreset(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("7. Create presets"), 7, controller, doc, parent)
    , m_content(new CreatePreset(doc, this))
{
    buildFrame(m_content, LeftButton::Back);
}

void PageCreatePreset::load()
{
    m_content->initialise();
}

void PageCreatePreset::store()
{
    m_content->store();
}

void PageCreatePreset::reset()
{
    m_content->reset();
}
