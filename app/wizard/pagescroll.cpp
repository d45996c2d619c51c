#include "pagescroll.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>

namespace {

/// Between the content and the bar that scrolls it.
constexpr int gap = 6;

} // namespace

PageScroll::PageScroll(QWidget* content, QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the keyboard goes from one part of the content to the next
    setWidget(content);
    content->setAutoFillBackground(false);
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this,
            SLOT(showFocus(QWidget*, QWidget*)));
}

QSize PageScroll::sizeHint() const
{
    return widget()->sizeHint();
}

bool PageScroll::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        fitContent();
        updateGeometry();
    }
    return handled;
}

void PageScroll::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fitContent();
}

void PageScroll::showFocus(QWidget* /*before*/, QWidget* now)
{
    const bool isPressed = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (!now || !widget()->isAncestorOf(now) || isPressed) {
        return; // What is pressed must not move away under the pointer.
    }
    ensureWidgetVisible(now); // of a list only its current cell
    const QRect place(now->mapTo(widget(), QPoint()), now->size());
    if (place.height() <= viewport()->height()) {
        ensureVisible(place.center().x(), place.center().y(), 0, place.height() / 2 + 1);
    }
}

/// Texts that are wrapped need more height the less width there is. Areas that resize their widget
/// themselves would give lists all the height that they would like to have.
QSize PageScroll::neededIn(int width) const
{
    const QLayout* layout = widget()->layout();
    if (!layout) {
        return widget()->minimumSizeHint();
    }
    const int least = layout->totalMinimumSize().width();
    const int height = layout->totalMinimumHeightForWidth(std::max(width, least));
    return {least, height >= 0 ? height : layout->totalMinimumSize().height()};
}

void PageScroll::fitContent()
{
    QSize room = maximumViewportSize();
    if (neededIn(room.width()).height() > room.height()) {
        // The lists of a page have bars of their own at their right edge.
        room.rwidth() -= verticalScrollBar()->sizeHint().width() + gap;
    }
    if (neededIn(room.width()).width() > room.width()) {
        room.rheight() -= horizontalScrollBar()->sizeHint().height();
    }
    widget()->resize(room.expandedTo(neededIn(room.width())));
}
