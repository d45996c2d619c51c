#pragma once

#include "tesseldoc.h"

#include <QList>
#include <QWidget>

#include <memory>

class MainWindow;
class QAbstractScrollArea;
class QPushButton;
class QStackedWidget;

/// The wizard's window with a hall of four rooms, 24 devices, some with long names, and several
/// layouts, on one of its pages.
class FilledWizard
{
public:
    explicit FilledWizard(int page);
    ~FilledWizard();

    QStackedWidget* stack() const;
    QWidget& page() const;

    /// What scrolls above the page's buttons.
    QAbstractScrollArea* area() const;

    /// The buttons of the page itself, from left to right.
    QList<QPushButton*> buttons() const;

    /// The widgets of a class that the page shows.
    template <typename Widget>
    QList<Widget*> shown() const;

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
};

template <typename Widget>
QList<Widget*> FilledWizard::shown() const
{
    QList<Widget*> found;
    for (auto* widget : page().findChildren<Widget*>()) {
        if (widget->isVisible()) {
            found.append(widget);
        }
    }
    return found;
}
