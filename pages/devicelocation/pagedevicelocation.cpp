#include "pagedevicelocation.h"

#include "devicelocation.h"
#include "wizardpage.h"

PageDeviceLocation::PageDeviceLocation(IPageController* controller, IDocAccessor* doc,
                                       QWidget* parent)
    : StepPage(tr("3. Assign Devices to the rooms"), stepNumber(WizardPage::DeviceLocation),
               new DeviceLocation(doc), LeftButton::Back, controller, doc, parent)
{
    setNextButtonEnabled(false);
}

void PageDeviceLocation::backButtonClicked()
{
    storeToDocument();
    StepPage::backButtonClicked();
}
