#include "pagedantespeaker.h"

#include "dantespeaker.h"
#include "wizardpage.h"

PageDanteSpeaker::PageDanteSpeaker(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("6. Assign the speaker locations for each room combination"),
               stepNumber(WizardPage::DanteSpeaker), new DanteSpeaker(doc), LeftButton::Back,
               controller, doc, parent)
{
}
