#pragma once

#include "fakecontroller.h"
#include "pageconfigure.h"
#include "tesseldoc.h"

#include <QString>

#include <optional>

class QColor;
class QTreeWidget;
class QTreeWidgetItem;
class RemoveButton;

/// The device set step over a document that a test fills before it enters. Devices are known by
/// their numbers, from 1 in the order in which they were placed.
struct ConfigureStep
{
    /// The devices get addresses in this network, given by its first three numbers.
    explicit ConfigureStep(const QString& network);

    /// The address of a device, placed or not.
    QString address(int device) const;

    /// Adds `count` devices of `model` in `room`, at the next free addresses.
    void place(const char* model, int count, int room);

    /// Comes from the step before and shows the page.
    void enter();

    /// The lists of the shown panel.
    QTreeWidget* hubs() const;
    QTreeWidget* peripherals() const;

    /// The row and the remove button, in sight, of a device in the shown panel, which must list it.
    QTreeWidgetItem* row(int device) const;
    RemoveButton* button(int device) const;

    /// Hubs, microphones, speakers and controllers as the shown panel counts them.
    QString counts() const;

    /// Whether number and layout of a row of the list of combined rooms have this colour.
    bool isColoured(int group, const QColor& colour) const;
    bool isRed(int group) const;
    bool isBlack(int group) const;

    bool canGoOn() const;

    /// Whether a device was stored as removed from a set; nothing when it was not stored.
    std::optional<bool> storedRemoval(int deviceSet, int scene, int device);

    QString network;
    TesselDoc doc{nullptr};
    FakeController controller;
    PageConfigure page{&controller, &doc, nullptr};
    QTreeWidget* list;
    int placed = 0;
};

/// Whether every text of a device's row has this colour.
bool allTextsAre(const QTreeWidgetItem* row, const QColor& colour);
