// Step 3 with 250 devices: one room chosen, and Reset, each beside one pass over the rows of a bare
// tree that reads or clears every combo box and counts.

#include "barepage.h"
#include "benchdocument.h"
#include "benchpair.h"
#include "benchrows.h"
#include "devicelocation.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QApplication>
#include <QComboBox>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <array>
#include <memory>

namespace {

constexpr HallSize size{4, 246, 0};
constexpr int comboColumn = 2;
constexpr int textColumn = 4;

struct Step
{
    Step()
    {
        fillDocument(doc, size);
        page.reload();
        page.resize(780, 540);
        page.show();
        QApplication::processEvents();
        combo = page.findChild<QComboBox*>(QStringLiteral("roomCombo_") + benchAddress(8));
    }

    // Every device back in its room, unmeasured.
    void refill()
    {
        page.reload();
        QApplication::processEvents();
    }

    TesselDoc doc{nullptr};
    DeviceLocation page{doc, nullptr};
    QComboBox* combo = nullptr;
};

struct BareStep
{
    BareStep()
        : tree(makeBareTree({size.hubs + size.peripherals, 6, QStringLiteral("opc")}, nullptr))
        , summary(makeBareTree({4, 4, QString()}, nullptr))
    {
        tree->resize(780, 540);
        tree->show();
        QApplication::processEvents();
    }

    QComboBox* comboAt(int row) const
    {
        auto* widget = tree->itemWidget(tree->topLevelItem(row), comboColumn);
        return qobject_cast<QComboBox*>(widget);
    }

    void count() const
    {
        std::array<int, 5> counts{};
        for (int row = 0; row < tree->topLevelItemCount(); ++row) {
            ++counts.at(size_t(comboAt(row)->currentIndex()));
        }
        for (int room = 1; room <= 4; ++room) {
            summary->topLevelItem(room - 1)->setText(1, QString::number(counts.at(size_t(room))));
        }
    }

    std::unique_ptr<QTreeWidget> tree;
    std::unique_ptr<QTreeWidget> summary;
};

void chooseBare(const BareStep& step, Stopwatch& watch)
{
    QComboBox* combo = step.comboAt(8);
    const int other = combo->currentIndex() == 1 ? 2 : 1;
    watch.start();
    combo->setCurrentIndex(other);
    step.tree->topLevelItem(8)->setText(textColumn, combo->currentText());
    step.count();
    watch.stop();
    QApplication::processEvents();
}

void choose(const Step& step, Stopwatch& watch)
{
    const int other = step.combo->currentIndex() == 1 ? 2 : 1;
    watch.start();
    step.combo->setCurrentIndex(other);
    watch.stop();
    QApplication::processEvents();
}

void resetBare(const BareStep& step, Stopwatch& watch)
{
    for (int row = 0; row < step.tree->topLevelItemCount(); ++row) {
        step.comboAt(row)->setCurrentIndex(1 + row % 4);
        step.tree->topLevelItem(row)->setText(textColumn, step.comboAt(row)->currentText());
    }
    QApplication::processEvents();
    watch.start();
    for (int row = 0; row < step.tree->topLevelItemCount(); ++row) {
        QComboBox* combo = step.comboAt(row);
        combo->setCurrentIndex(0);
        step.tree->topLevelItem(row)->setText(textColumn, combo->currentText());
    }
    step.count();
    watch.stop();
}

void reset(Step& step, Stopwatch& watch)
{
    step.refill();
    watch.start();
    step.page.reset();
    watch.stop();
}

} // namespace

void registerRoomCombos()
{
    const auto bare = std::make_shared<BareStep>();
    const auto step = std::make_shared<Step>();
    registerPair(
        QStringLiteral("combo"), 60, [bare](Stopwatch& watch) { chooseBare(*bare, watch); },
        [step](Stopwatch& watch) { choose(*step, watch); });
    registerPair(
        QStringLiteral("reset"), 20, [bare](Stopwatch& watch) { resetBare(*bare, watch); },
        [step](Stopwatch& watch) { reset(*step, watch); });
}
