#include "pagedevicelocation.h"

#include "devicelocation.h"

namespace {

constexpr int deviceLocationPageNumber = 3;

} // namespace

PageDeviceLocation::PageDeviceLocation(IPageController* controller, IDocAccessor* doc,
                                       QWidget* parent)
    : StepPage(tr("3. Assign Devices to the rooms"), deviceLocationPageNumber, controller, doc,
               parent)
    , m_content(new DeviceLocation(*doc, this))
{
    buildFrame(m_content, LeftButton::Back);
    connect(m_content, SIGNAL(nextButtonEnabled(bool)), this, SLOT(setNextButtonEnabled(bool)));
    setNextButtonEnabled(false);
}

void PageDeviceLocation::backButtonClicked()
{
    store();
    StepPage::backButtonClicked();
}

void PageDeviceLocation::load()
{
    m_content->reload();
}

void PageDeviceLocation::store()
{
    m_content->save();
}

void PageDeviceLocation::reset()
{
    m_content->reset();
}
