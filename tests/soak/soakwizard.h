#pragma once

#include "hall.h"
#include "loginanswers.h"
#include "mainwindow.h"
#include "tesseldoc.h"
#include "wizardhands.h"

#include <QUdpSocket>

#include <memory>
#include <vector>

/// A simulated hall of two hubs and six other devices in this program. Nothing crosses the loopback
/// interface by broadcast, so its devices answer a discovery when they are told to.
class SoakHall
{
public:
    /// The devices get the addresses base, base + 1, ...
    explicit SoakHall(const QString& base);

    /// Every device sends its replies to the wizard, from each of its addresses.
    void answerDiscovery();
    /// A hall remembers all that it is asked; that is not the wizard's memory.
    void forget() const;

    Hall hall;

private:
    struct Port
    {
        SimulatedDevice* device;
        NetworkPort port;
        std::unique_ptr<QUdpSocket> socket;
    };
    std::vector<Port> m_ports;
};

/// The wizard from its document to its window, used with the mouse.
class SoakWizard
{
public:
    SoakWizard();

    /// Has the window look for the devices of the hall and waits until all are in the document.
    void discover(SoakHall& hall);
    /// Puts the devices into two rooms, makes two layouts, and sees to the one hub of each set.
    /// Starts and ends on the first page.
    void configure(const SoakHall& hall);

    /// Presses "Next", or "Back", on the page shown.
    void next();
    void back();
    int pageIndex() const;
    /// Presses "Execute" on the page shown and waits until every hub is done.
    void install();

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;

private:
    void removeSecondHub();
    WizardHands hands() const;
};
