#include "dialoganswerer.h"

#include <QApplication>
#include <QEvent>
#include <QTimerEvent>
#include <QWidget>

namespace {

// Long enough for a dialog to be laid out and painted, short enough not to be waited for.
constexpr int lookEveryMs = 40;

QString nameOf(const QWidget* dialog)
{
    return dialog->objectName().isEmpty() ? dialog->windowTitle() : dialog->objectName();
}

} // namespace

DialogAnswerer::DialogAnswerer(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
    m_timer.start(lookEveryMs, this);
}

void DialogAnswerer::onDialog(const QString& name, const Answer& answer)
{
    m_answers.insert(name, answer);
}

int DialogAnswerer::answered(const QString& name) const
{
    return m_counts.value(name);
}

void DialogAnswerer::timerEvent(QTimerEvent* /*event*/)
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || m_done.contains(dialog) || !m_answers.contains(nameOf(dialog))) {
        return;
    }
    m_done.insert(dialog);
    // While a timer's event is being handled it does not fire again, also not in the event loop of
    // another dialog that comes up meanwhile and wants its answer first: so a new timer goes on.
    m_timer.start(lookEveryMs, this);
    ++m_counts[nameOf(dialog)];
    m_answers.value(nameOf(dialog))(dialog);
}

bool DialogAnswerer::eventFilter(QObject* watched, QEvent* event)
{
    // The same dialog object may come up again, after a wrong password for one.
    if (event->type() == QEvent::Hide || event->type() == QEvent::Destroy) {
        m_done.remove(watched);
    }
    return QObject::eventFilter(watched, event);
}
