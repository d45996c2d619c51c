#include "pagefactory.h"

#include "pageconfigure.h"
#include "pagecreatepreset.h"
#include "pagecreatescene.h"
#include "pagedantespeaker.h"
#include "pagedevicelocation.h"
#include "pagefinish.h"
#include "pageinstall.h"
#include "pageintroduction.h"
#include "pageroomdesign.h"
#include "wizardpage.h"

#include <array>

namespace {

using Maker = BasePage* (*)(IPageController*, IDocAccessor*, QWidget*);

template <typename Page>
BasePage* make(IPageController* controller, IDocAccessor* doc, QWidget* parent)
{
    return new Page(controller, doc, parent);
}

constexpr auto makers = std::to_array<Maker>({
    make<PageIntroduction>,
    make<PageRoomDesign>,
    make<PageDeviceLocation>,
    make<PageCreateScene>,
    make<PageConfigure>,
    make<PageDanteSpeaker>,
    make<PageCreatePreset>,
    make<PageInstall>,
    make<PageFinish>,
});
static_assert(makers.size() == pageCount);

} // namespace

BasePage* makePage(int index, IPageController* controller, IDocAccessor* doc, QWidget* parent)
{
    if (index < 0 || index >= pageCount) {
        return nullptr;
    }
    return makers.at(std::size_t(index))(controller, doc, parent);
}
