// Step 3 with 250 devices: one room chosen, and Reset, each beside the same done to bare trees with
// the same widgets: every row's text and pencil brought up to date, the summary made anew.

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
constexpr int rooms = 4;
constexpr int modelColumn = 2;
constexpr int roomColumn = 4;

struct Step
{
    Step()
    {
        fillDocument(doc, size);
        page.load();
        page.resize(780, 540);
        page.show();
        QApplication::processEvents();
        combo = page.findChild<QComboBox*>(QStringLiteral("roomCombo_") + benchAddress(8));
    }

    // Every device back in a room, unmeasured.
    void refill()
    {
        int row = 0;
        for (QComboBox* room : page.findChildren<QComboBox*>()) {
            room->setCurrentIndex(1 + row++ % rooms);
        }
        QApplication::processEvents();
    }

    TesselDoc doc{nullptr};
    DeviceLocation page{&doc};
    QComboBox* combo = nullptr;
};

struct BareRow
{
    QTreeWidgetItem* item;
    QWidget* pencil;
    QComboBox* room;
    QString model;
};

struct BareStep
{
    BareStep()
        : tree(makeBareTree({size.hubs + size.peripherals, 6, QStringLiteral("op  c")}, nullptr))
        , summary(makeBareTree({0, 6, QString()}, nullptr))
    {
        const HallRecords hall = hallRecords(size);
        for (const DeviceData& device : hall.devices) {
            QTreeWidgetItem* item = tree->topLevelItem(int(rows.size()));
            auto* combo = qobject_cast<QComboBox*>(tree->itemWidget(item, roomColumn));
            combo->setCurrentIndex(device.roomNumber);
            rows.append(
                {item, tree->itemWidget(item, 0)->findChild<QWidget*>(), combo, device.modelName});
        }
        update();
        for (QTreeWidget* shown : {tree.get(), summary.get()}) {
            shown->resize(780, 540);
            shown->show();
        }
        QApplication::processEvents();
    }

    void update() const
    {
        for (const BareRow& row : rows) {
            row.item->setText(roomColumn, row.room->currentText());
            row.pencil->setVisible(row.room->currentIndex() > 0);
        }
        showCounts();
    }

    void showCounts() const
    {
        std::array<std::array<int, 4>, rooms + 1> counts{};
        for (const BareRow& row : rows) {
            ++counts.at(size_t(row.room->currentIndex())).at(size_t(classOf(row.model)));
        }
        summary->clear();
        for (int room = 1; room <= rooms; ++room) {
            summary->addTopLevelItem(makeCountRow(room, counts.at(size_t(room))));
        }
    }

    static int classOf(const QString& model)
    {
        if (model.startsWith(u"PX-HB")) {
            return 0;
        }
        if (model.startsWith(u"PX-DL") || model.startsWith(u"PX-BK") ||
            model.startsWith(u"PX-NDE")) {
            return 1;
        }
        return model == u"LQA4-08S" || model == u"DSK4M" ? 2 : 3;
    }

    static QTreeWidgetItem* makeCountRow(int room, const std::array<int, 4>& counts)
    {
        auto* item = new QTreeWidgetItem({QString::number(room)});
        item->setBackground(0, QColor(0xB0, 0x68, 0x00));
        item->setForeground(0, QColor(Qt::white));
        const bool tooMany = counts.at(1) + counts.at(2) > 16;
        for (int column = 0; column < 4; ++column) {
            item->setText(column + 1, QString::number(counts.at(size_t(column))));
            if (tooMany && (column == 1 || column == 2)) {
                item->setForeground(column + 1, QColor(Qt::red));
            }
        }
        return item;
    }

    std::unique_ptr<QTreeWidget> tree;
    std::unique_ptr<QTreeWidget> summary;
    QList<BareRow> rows;
};

void chooseBare(const BareStep& step, Stopwatch& watch)
{
    QComboBox* combo = step.rows.at(8).room;
    const int other = combo->currentIndex() == 1 ? 2 : 1;
    watch.start();
    combo->setCurrentIndex(other);
    step.update();
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
    for (qsizetype row = 0; row < step.rows.size(); ++row) {
        step.rows.at(row).room->setCurrentIndex(1 + int(row) % rooms);
    }
    step.update();
    QApplication::processEvents();
    watch.start();
    for (const BareRow& row : step.rows) {
        row.room->setCurrentIndex(0);
    }
    step.update();
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
