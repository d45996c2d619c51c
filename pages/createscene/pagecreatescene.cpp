#include "pagecreatescene.h"

#include "createscene.h"
#include "wizardpage.h"

PageCreateScene::PageCreateScene(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("4. Create room layouts"), stepNumber(WizardPage::CreateScene),
               new CreateScene(doc), LeftButton::Back, controller, doc, parent)
{
    setNextButtonEnabled(false);
}
