#include "windowplace.h"

#include "fontscale.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

WindowPlace::WindowPlace(QWidget* window, QSize least, QSize largest)
    : QObject(window)
    , m_window(window)
    , m_least(least)
    , m_largest(largest)
{
    window->installEventFilter(this);
    setLimits();
}

void WindowPlace::restore(QSize size)
{
    m_window->resize(size.boundedTo(roomOnScreen(m_window)));
    bringInside();
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        adjust();
    } else if (event->type() == QEvent::Show && !event->spontaneous()) {
        watchScreen();
    }
    return QObject::eventFilter(watched, event);
}

void WindowPlace::adjust()
{
    fit();
    if (isFree()) {
        bringInside();
    }
}

/// Moves nothing: a window comes to another screen in the middle of a drag.
void WindowPlace::fit()
{
    setLimits();
    watchScreen();
    if (isFree()) {
        m_window->resize(m_window->size().boundedTo(roomOnScreen(m_window)));
    }
}

/// Whether size and place are the window's own and not the screen's.
bool WindowPlace::isFree() const
{
    return !m_window->isMaximized() && !m_window->isFullScreen();
}

/// A window as wide as its screen needs no frame at its sides; a title bar it has everywhere.
QSize WindowPlace::leastSize() const
{
    const QSize screen = m_window->screen()->availableSize();
    const QSize withoutFrame(screen.width(), roomOnScreen(m_window).height());
    return scaledToFont(m_least, m_window).expandedTo(m_least.boundedTo(withoutFrame));
}

void WindowPlace::setLimits()
{
    m_window->setMinimumSize(leastSize());
    m_window->setMaximumSize(m_largest * fontScale(m_window));
}

/// Where the system puts a window that is not shown yet is left to the system.
void WindowPlace::bringInside()
{
    if (!m_window->isVisible()) {
        return;
    }
    const QRect screen = m_window->screen()->availableGeometry();
    const QRect frame = m_window->frameGeometry();
    const QSize rest = (screen.size() - frame.size()).expandedTo({0, 0});
    const QPoint place(std::clamp(frame.left(), screen.left(), screen.left() + rest.width()),
                       std::clamp(frame.top(), screen.top(), screen.top() + rest.height()));
    if (place != frame.topLeft()) {
        m_window->move(place);
    }
}

void WindowPlace::watchScreen()
{
    if (const QWindow* window = m_window->windowHandle()) {
        connect(window, SIGNAL(screenChanged(QScreen*)), this, SLOT(fit()), Qt::UniqueConnection);
        connect(window->screen(), SIGNAL(availableGeometryChanged(QRect)), this, SLOT(adjust()),
                Qt::UniqueConnection);
    }
}
