#pragma once

/// How pages move the wizard. The main window implements it; pages never meet each other.
class IPageController
{
public:
    /// Goes to the next page, making it on first use. On the last page: enters it again.
    virtual void next() = 0;

    /// Goes to the page before. On the first page: enters it again.
    virtual void back() = 0;

    /// Ends the program the way closing the window does: on the pages where work can be saved,
    /// the user is asked first and may stay.
    virtual void quit() = 0;

    /// Tells whether every preset has been installed as the document is now. Until it is taken
    /// back, closing on the installation step asks only when the document differs from that.
    virtual void setInstallDone(bool done) = 0;

    IPageController() = default;
    IPageController(const IPageController&) = delete;
    IPageController& operator=(const IPageController&) = delete;
    IPageController(IPageController&&) = delete;
    IPageController& operator=(IPageController&&) = delete;
    virtual ~IPageController() = default;
};
