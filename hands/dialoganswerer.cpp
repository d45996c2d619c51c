#include "dialoganswerer.h"

#include "hands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>
#include <QTimerEvent>

#include <algorithm>

namespace {

QString nameOf(const QWidget* dialog)
{
    return dialog->objectName().isEmpty() ? dialog->windowTitle() : dialog->objectName();
}

/// All answerers, the youngest last.
QList<DialogAnswerer*>& answerers()
{
    static QList<DialogAnswerer*> list;
    return list;
}

/// The dialogs that are open and have had their answer, whoever gave it and whether or not that
/// answerer is still there. The same dialog object may come up again, after a wrong password for
/// one: then it has not had its answer yet.
class DialogsDone : public QObject
{
public:
    bool contains(const QObject* dialog) const { return m_dialogs.contains(dialog); }

    void add(QObject* dialog)
    {
        m_dialogs.append(dialog);
        dialog->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Hide) {
            m_dialogs.removeOne(watched);
            watched->removeEventFilter(this);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QList<QPointer<QObject>> m_dialogs;
};

DialogsDone& dialogsDone()
{
    static DialogsDone list;
    return list;
}

} // namespace

DialogAnswerer::DialogAnswerer(QObject* parent, int lookEveryMs)
    : QObject(parent)
    , m_lookEveryMs(lookEveryMs)
{
    answerers().append(this);
    m_timer.start(m_lookEveryMs, this);
}

DialogAnswerer::DialogAnswerer(QAnyStringView name, const Answer& answer)
    : DialogAnswerer()
{
    expect(name, answer);
}

DialogAnswerer::~DialogAnswerer()
{
    answerers().removeOne(this);
    for (const Known& dialog : std::as_const(m_known)) {
        if (dialog.isOnce && dialog.answered == 0) {
            qWarning("The dialog \"%s\" never came up", qPrintable(dialog.name));
        }
    }
}

void DialogAnswerer::onDialog(QAnyStringView name, const Answer& answer, const Ready& ready)
{
    know({.name = name.toString(), .answer = answer, .ready = ready});
}

void DialogAnswerer::expect(QAnyStringView name, const Answer& answer)
{
    know({.name = name.toString(), .answer = answer, .ready = {}, .isOnce = true});
}

void DialogAnswerer::know(const Known& dialog)
{
    const qsizetype index = indexOf(dialog.name);
    if (index >= 0) {
        m_known.removeAt(index);
    }
    m_known.append(dialog);
}

qsizetype DialogAnswerer::indexOf(const QString& name) const
{
    const auto has = [&name](const Known& dialog) { return dialog.name == name; };
    const auto found = std::find_if(m_known.begin(), m_known.end(), has);
    return found == m_known.end() ? -1 : found - m_known.begin();
}

int DialogAnswerer::answered(QAnyStringView name) const
{
    const qsizetype index = indexOf(name.toString());
    return index < 0 ? 0 : m_known.at(index).answered;
}

bool DialogAnswerer::knows(const QWidget* dialog) const
{
    const qsizetype index = indexOf(nameOf(dialog));
    return index >= 0 && !(m_known.at(index).isOnce && m_known.at(index).answered > 0);
}

DialogAnswerer* DialogAnswerer::knower(const QWidget* dialog)
{
    const auto& all = answerers();
    const auto found = std::find_if(all.rbegin(), all.rend(), [dialog](const DialogAnswerer* each) {
        return each->knows(dialog);
    });
    return found == all.rend() ? nullptr : *found;
}

void DialogAnswerer::timerEvent(QTimerEvent* /*event*/)
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible() || dialogsDone().contains(dialog)) {
        return;
    }
    const DialogAnswerer* whose = knower(dialog);
    if (whose == this) {
        answer(dialog);
    } else if (whose == nullptr && answerers().last() == this) {
        refuse(dialog);
    }
}

void DialogAnswerer::answer(QWidget* dialog)
{
    const qsizetype index = indexOf(nameOf(dialog));
    const Ready ready = m_known.at(index).ready;
    if (ready && !ready(dialog)) {
        return;
    }
    take(dialog);
    note(dialog);
    ++m_known[index].answered;
    // A copy: an answer may tell what to do with the next dialog of this name.
    const Answer act = m_known.at(index).answer;
    act(dialog);
}

void DialogAnswerer::refuse(QWidget* dialog)
{
    take(dialog);
    qWarning("Nobody expected the dialog \"%s\"", qPrintable(nameOf(dialog)));
    if (auto* box = qobject_cast<QDialog*>(dialog)) {
        box->reject();
    }
}

void DialogAnswerer::take(QWidget* dialog)
{
    dialogsDone().add(dialog);
    // While a timer's event is being handled it does not fire again, also not in the event loop of
    // another dialog that comes up meanwhile and wants its answer first: so a new timer goes on.
    m_timer.start(m_lookEveryMs, this);
}

void DialogAnswerer::note(const QWidget* dialog)
{
    const auto* box = qobject_cast<const QMessageBox*>(dialog);
    if (box == nullptr) {
        return;
    }
    m_text = box->text();
    m_buttons.clear();
    for (const QAbstractButton* button : box->buttons()) {
        m_buttons.append(button->text().remove(u'&'));
    }
    m_buttons.sort();
}

DialogAnswerer::Answer pressing(QAnyStringView button)
{
    return [text = button.toString()](QWidget* dialog) { Hands::clickButton(dialog, text); };
}
