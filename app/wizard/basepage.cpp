#include "basepage.h"

#include "accessiblerole.h"
#include "quietline.h"

#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>

BasePage::BasePage(const QString& title, int pageNumber, IPageController* controller,
                   IDocAccessor* doc, QWidget* parent)
    : QWidget(parent)
    , m_title(title)
    , m_pageNumber(pageNumber)
    , m_controller(controller)
    , m_doc(doc)
{
    setAccessibleRole(this, QAccessible::Pane);
    setAccessibleName(title);
}

const QString& BasePage::title() const
{
    return m_title;
}

int BasePage::pageNumber() const
{
    return m_pageNumber;
}

void BasePage::enterFrom(int /*previousPageNumber*/) {}

void BasePage::restoreFromDocument() {}

void BasePage::storeToDocument() {}

void BasePage::tell(const QString& sentence)
{
    auto* line = findChild<QuietLine*>(QString(), Qt::FindDirectChildrenOnly);
    if (!line) {
        line = new QuietLine(this);
        layout()->addWidget(line);
    }
    line->say({sentence});
}

void BasePage::keyPressEvent(QKeyEvent* event)
{
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !button) {
        QWidget::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) { // a key that is held would turn page after page
        button->click();
    }
}

IPageController& BasePage::controller() const
{
    return *m_controller;
}

IDocAccessor& BasePage::doc() const
{
    return *m_doc;
}
