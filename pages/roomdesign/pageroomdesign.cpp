#include "pageroomdesign.h"

#include "roomdesign.h"
#include "wizardpage.h"

PageRoomDesign::PageRoomDesign(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("2. Room Design"), stepNumber(WizardPage::RoomDesign), new RoomDesign(doc),
               LeftButton::Close, controller, doc, parent)
{
    setNextButtonEnabled(false);
}
