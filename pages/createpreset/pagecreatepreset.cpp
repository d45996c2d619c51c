#include "pagecreatepreset.h"

#include "createpreset.h"
#include "wizardpage.h"

PageCreatePreset::PageCreatePreset(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("7. Create presets"), stepNumber(WizardPage::CreatePreset), new CreatePreset(doc),
               LeftButton::Back, controller, doc, parent)
{
}
