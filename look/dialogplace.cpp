#include "dialogplace.h"

#include "fontscale.h"

#include <QDialog>
#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace {

/// From one dialog to the next, so that the title of the lower one is in sight.
constexpr int cascadeStep = 24;
/// Room for the title bar of a dialog that the screen has no room for.
constexpr int titleBar = 30;

/// Where the upper left corner of `dialog` may be so that its screen holds all of it; where that
/// is too small, at least this corner.
QRect placesOn(const QDialog* dialog)
{
    const QRect screen = dialog->screen()->availableGeometry().adjusted(0, titleBar, 0, 0);
    const QSize rest = screen.size() - dialog->size() + QSize(1, 1);
    return {screen.topLeft(), rest.expandedTo({1, 1})};
}

QPoint nearestIn(const QRect& places, QPoint place)
{
    return {std::clamp(place.x(), places.left(), places.right()),
            std::clamp(place.y(), places.top(), places.bottom())};
}

/// Beyond the right and the lower edge it goes on at the opposite one.
QPoint wrappedInto(const QRect& places, QPoint place)
{
    return {places.left() + (place.x() - places.left()) % places.width(),
            places.top() + (place.y() - places.top()) % places.height()};
}

} // namespace

DialogPlace::DialogPlace(QDialog* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{
    if (dialog->parentWidget()) {
        dialog->installEventFilter(this);
        dialog->parentWidget()->window()->installEventFilter(this);
    }
}

bool DialogPlace::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (watched == m_dialog && type == QEvent::Show && !event->spontaneous()) {
        open();
    } else if (watched != m_dialog && m_dialog->isVisible() &&
               (type == QEvent::Move || type == QEvent::Resize)) {
        follow();
    }
    return QObject::eventFilter(watched, event);
}

QPoint DialogPlace::middle() const
{
    return m_dialog->parentWidget()->window()->geometry().center();
}

bool DialogPlace::isTaken(QPoint place) const
{
    const auto dialogs = m_dialog->parentWidget()->window()->findChildren<QDialog*>();
    return std::any_of(dialogs.begin(), dialogs.end(), [this, place](const QDialog* other) {
        return other != m_dialog && other->isVisible() && other->geometry().topLeft() == place;
    });
}

QPoint DialogPlace::freePlace() const
{
    const QRect places = placesOn(m_dialog);
    const int step = scaledToFont(cascadeStep, m_dialog);
    QPoint place = nearestIn(places, m_middle - m_dialog->rect().center());
    for (int tries = 0; isTaken(place) && tries < places.width(); ++tries) {
        place = wrappedInto(places, place + QPoint(step, step));
    }
    return place;
}

void DialogPlace::open()
{
    m_middle = middle();
    // Given a place, it keeps its own size all the same.
    const bool resized = m_dialog->testAttribute(Qt::WA_Resized);
    m_dialog->setGeometry({freePlace(), m_dialog->size()});
    m_dialog->setAttribute(Qt::WA_Resized, resized);
}

void DialogPlace::follow()
{
    m_dialog->move(m_dialog->pos() + middle() - m_middle);
    m_middle = middle();
}
