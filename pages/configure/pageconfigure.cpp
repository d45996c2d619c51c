#include "pageconfigure.h"

#include "configure.h"
#include "wizardpage.h"

PageConfigure::PageConfigure(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : StepPage(tr("5. Select the Devices for each combined rooms"),
               stepNumber(WizardPage::Configure), new Configure(doc), LeftButton::Back, controller,
               doc, parent)
{
}
