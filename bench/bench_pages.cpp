// Entering each working page for the first time until it is painted, beside bare trees with the
// same rows, columns and widgets in them. Pages whose cost depends on the number of devices are
// entered with two numbers of them.

#include "baregrouppage.h"
#include "barepage.h"
#include "basepage.h"
#include "benchdocument.h"
#include "benchpair.h"
#include "benchrows.h"
#include "ipagecontroller.h"
#include "pagefactory.h"
#include "stopwatch.h"
#include "tesseldoc.h"
#include "wizardpage.h"

#include <QApplication>
#include <QStackedWidget>

#include <functional>
#include <memory>

namespace {

constexpr int rooms = 4;
constexpr int cells = 64;
constexpr int layouts = 10;
constexpr int groups = rooms * layouts;
constexpr int placingPage = int(WizardPage::DeviceLocation);
constexpr int deviceSetsPage = int(WizardPage::Configure);
constexpr int speakersPage = int(WizardPage::DanteSpeaker);
constexpr int fewDevices = 250;
constexpr int manyDevices = 1000;

class StillController : public IPageController
{
public:
    void next() override {}
    void back() override {}
    void quit() override {}
    void setInstallDone(bool /*done*/) override {}
};

// The shape of the page at `index` with so many devices; step 4 paints whole rooms.
BareShape shapeOf(int index, int devices)
{
    const QString noWidgets;
    switch (index) {
    case 1:
        return {3, {cells, 402}, {}};
    case 2:
        return {5,
                {cells, 113},
                {{rooms, 4, noWidgets},
                 {rooms, 6, QStringLiteral("op  c")},
                 {devices - rooms, 6, QStringLiteral("op  c")}}};
    case 3:
        return {3, {rooms, 393}, {{layouts, 2, QStringLiteral(" b"), layouts}}};
    case 6:
        return {3, {}, {{groups, 4, QStringLiteral("e")}}};
    default:
        return {3, {}, {{rooms, 4, QStringLiteral("p")}}};
    }
}

// A window as the wizard has one, in which a page comes up.
struct Frame
{
    Frame()
    {
        window.resize(800, 600);
        window.addWidget(new QWidget);
        window.show();
        QApplication::processEvents();
    }

    void showUntilPainted(QWidget* page)
    {
        window.setCurrentWidget(page);
        QApplication::processEvents();
    }

    QStackedWidget window;
};

void enterBare(const std::function<QWidget*(QWidget*)>& makeBare, Stopwatch& watch)
{
    Frame frame;
    watch.start();
    QWidget* page = makeBare(&frame.window);
    frame.window.addWidget(page);
    frame.showUntilPainted(page);
    watch.stop();
}

void enter(IDocAccessor& doc, int index, Stopwatch& watch)
{
    Frame frame;
    StillController controller;
    watch.start();
    BasePage* page = makePage(index, &controller, &doc, &frame.window);
    frame.window.addWidget(page);
    page->enterFrom(index);
    frame.showUntilPainted(page);
    watch.stop();
}

void registerPage(int index, int devices)
{
    const HallSize size{rooms, devices - rooms, layouts};
    const auto doc = std::make_shared<TesselDoc>(nullptr);
    fillDocument(*doc, size);
    const auto makeBare = [index, devices, hall = hallRecords(size)](QWidget* parent) -> QWidget* {
        if (index == deviceSetsPage) {
            return new BareGroupPage(BareGroupPage::Step::DeviceSets, hall, parent);
        }
        if (index == speakersPage) {
            return new BareGroupPage(BareGroupPage::Step::SpeakerPositions, hall, parent);
        }
        return new BarePage(shapeOf(index, devices), parent);
    };
    registerPair(
        QStringLiteral("page%1x%2").arg(index + 1).arg(devices), devices > fewDevices ? 9 : 15,
        [makeBare](Stopwatch& watch) { enterBare(makeBare, watch); },
        [doc, index](Stopwatch& watch) { enter(*doc, index, watch); });
}

} // namespace

void registerPages()
{
    for (int index = int(WizardPage::RoomDesign); index <= int(WizardPage::Install); ++index) {
        registerPage(index, fewDevices);
    }
    for (const int index : {placingPage, deviceSetsPage, speakersPage}) {
        registerPage(index, manyDevices);
    }
}
