#pragma once

#include "ipage.h"

#include <QWidget>

class IDocAccessor;
class IPageController;

/// Base of every page: its title, its number, and the two interfaces that a page works through.
/// Screen readers know it by its title.
/// Entering, restoring and storing do nothing until a page overrides them.
class BasePage : public QWidget, public IPage
{
    Q_OBJECT

public:
    /// Neither `controller` nor `doc` is owned; both outlive the page.
    BasePage(const QString& title, int pageNumber, IPageController* controller, IDocAccessor* doc,
             QWidget* parent);

    const QString& title() const override;
    int pageNumber() const override;
    void enterFrom(int previousPageNumber) override;
    void restoreFromDocument() override;
    void storeToDocument() override;

    /// Says a sentence that is not the page's own in its quiet line, until the page has something
    /// else to say there. A page without such a line gets one.
    void tell(const QString& sentence);

protected:
    /// Lets Return press the push button that has the focus, as it does in dialogs.
    void keyPressEvent(QKeyEvent* event) override;

    IPageController& controller() const;
    IDocAccessor& doc() const;

private:
    QString m_title;
    int m_pageNumber;
    IPageController* m_controller;
    IDocAccessor* m_doc;
};
