#pragma once

#include "fakecontroller.h"
#include "hall.h"
#include "loginanswers.h"
#include "pageinstall.h"
#include "quickhall.h"
#include "tesseldoc.h"

class QPushButton;
class QTreeWidget;

/// A simulated hall with its hubs one per room, a document with two layouts and named presets for
/// it, and the installation step in front of a user who knows the password of every hub.
struct InstallHall
{
    /// The hubs get the addresses base, base + 1, ...
    InstallHall(const QString& base, int hubs);
    /// The peripherals of the description are placed with its first hub.
    explicit InstallHall(const HallDescription& description);

    /// The address of a hub, from 1, and the hub itself.
    QString address(int hub) const;
    SimulatedHub* hub(int number) const;

    /// Plans a misbehaviour of a hub.
    void setFault(int hub, const Fault& fault) const;

    /// The statuses from the first to the last listed row, joined with blanks.
    QString statuses() const;
    /// The status of a hub, from 1.
    QString status(int hub) const;

    QPushButton* execute() const;
    QTreeWidget* list() const;

    TesselDoc doc{nullptr};
    FakeController controller;
    Hall hall;
    LoginAnswers answers;
    PageInstall page{&controller, &doc, nullptr};
};

/// How many times a hub was asked for this, by the name in its journal.
qsizetype timesAsked(const SimulatedHub& hub, Exchange exchange);
