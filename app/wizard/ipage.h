#pragma once

#include <QString>

/// One page of the wizard, as the main window sees it.
class IPage
{
public:
    /// The title shown above the page.
    virtual const QString& title() const = 0;

    /// The step, from 1.
    virtual int pageNumber() const = 0;

    /// Called when the page is about to be shown (it is not visible yet) because the user moved
    /// here from the page with this number. Smaller than pageNumber(): the user goes forward.
    virtual void enterFrom(int previousPageNumber) = 0;

    /// Called when saved work has been loaded: the page refills its widgets from the document.
    virtual void restoreFromDocument() = 0;

    /// Called on the current page just before the work is saved: the page writes what the user
    /// has entered so far into the document.
    virtual void storeToDocument() = 0;

    IPage() = default;
    IPage(const IPage&) = delete;
    IPage& operator=(const IPage&) = delete;
    IPage(IPage&&) = delete;
    IPage& operator=(IPage&&) = delete;
    virtual ~IPage() = default;
};
