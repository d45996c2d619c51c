#pragma once

#include <QSize>

class IDocAccessor;

/// Typed queries over what belongs to the run of the program rather than to the hall.

/// The index of the chosen network interface, 0 when none has been chosen.
int nicIndex(IDocAccessor& doc);
void setNicIndex(IDocAccessor& doc, int index);

/// Whether the program's arguments chose the interface: then nobody searches on it, and the devices
/// are those that were handed over with it.
bool isNicHandedOver(IDocAccessor& doc);

/// The page shown when the work was saved, an index of WizardPage.
int pageIndex(IDocAccessor& doc);
void setPageIndex(IDocAccessor& doc, int index);

/// The size of the window when the work was saved; invalid when it was never set.
QSize windowSize(IDocAccessor& doc);
void setWindowSize(IDocAccessor& doc, const QSize& size);
