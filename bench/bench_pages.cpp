// Entering each working page for the first time until it is painted, beside bare trees with as many
// rows, columns and widgets in them.

#include "barepage.h"
#include "basepage.h"
#include "benchdocument.h"
#include "benchpair.h"
#include "benchrows.h"
#include "ipagecontroller.h"
#include "pagefactory.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QApplication>
#include <QStackedWidget>

#include <memory>

namespace {

constexpr int rooms = 4;
constexpr int cells = 64;
constexpr int layouts = 10;
constexpr int groups = rooms * layouts;

class StillController : public IPageController
{
public:
    void next() override {}
    void back() override {}
    void quit() override {}
    void setInstallDone(bool /*done*/) override {}
};

// The shape of the page at `index` with so many devices; step 4 paints whole rooms, step 5 and 6
// show one combined room.
BareShape shapeOf(int index, int devices)
{
    const int inRoom = devices / rooms;
    const QString noWidgets;
    const BareTree groupList{groups, 3, noWidgets};
    const BareTree summary{1, 5, noWidgets};
    switch (index) {
    case 1:
        return {3, {cells, 402}, {}};
    case 2:
        return {5,
                {cells, 113},
                {{rooms, 4, noWidgets},
                 {rooms, 6, QStringLiteral("opc")},
                 {devices - rooms, 6, QStringLiteral("opc")}}};
    case 3:
        return {3, {rooms, 393}, {{layouts, 2, QStringLiteral(" b"), layouts}}};
    case 4:
        return {6,
                {},
                {groupList,
                 summary,
                 {1, 7, QStringLiteral("pp")},
                 {inRoom - 1, 7, QStringLiteral("pp")}}};
    case 5:
        return {4, {}, {groupList, {inRoom / 2, 7, QStringLiteral("pc")}}};
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

void enterBare(const BareShape& shape, Stopwatch& watch)
{
    Frame frame;
    watch.start();
    auto* page = new BarePage(shape, &frame.window);
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

} // namespace

void registerPages()
{
    for (const int devices : {250, 1000}) {
        const auto doc = std::make_shared<TesselDoc>(nullptr);
        fillDocument(*doc, {rooms, devices - rooms, layouts});
        for (int index = 1; index <= pageTotal - 2; ++index) {
            const BareShape shape = shapeOf(index, devices);
            registerPair(
                QStringLiteral("page%1x%2").arg(index + 1).arg(devices), devices > 250 ? 9 : 15,
                [shape](Stopwatch& watch) { enterBare(shape, watch); },
                [doc, index](Stopwatch& watch) { enter(*doc, index, watch); });
        }
    }
}
