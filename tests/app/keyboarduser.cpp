#include "keyboarduser.h"

#include "finding.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace {

/// A desktop gives the keyboard to the window below one that has closed; the platform that tests
/// run on leaves that to them.
void giveTheKeyboardToTheFront()
{
    if (QApplication::activeWindow()) {
        return;
    }
    QWidget* front = QApplication::activeModalWidget();
    if (!front) {
        front = wizardWindow();
    }
    front->activateWindow();
    QCoreApplication::processEvents();
}

bool isUsable(const QWidget* focused)
{
    return focused && focused->isVisible() && focused->isEnabled() &&
           focused->window() == QApplication::activeWindow();
}

} // namespace

void KeyboardUser::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    ++m_strokes;
    look("before");
    if (QWindow* window = QGuiApplication::focusWindow()) {
        QTest::keyClick(window, key, modifiers);
    }
    QCoreApplication::processEvents();
    giveTheKeyboardToTheFront();
    look("after");
}

void KeyboardUser::press(int times, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    for (int i = 0; i < times; ++i) {
        press(key, modifiers);
    }
}

void KeyboardUser::type(const QString& text)
{
    for (const QChar letter : text) {
        ++m_strokes;
        look("before");
        if (QWindow* window = QGuiApplication::focusWindow()) {
            QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString(letter),
                                Qt::NoModifier);
        }
        look("after");
    }
}

void KeyboardUser::look(const char* when)
{
    if (!isUsable(QApplication::focusWidget())) {
        m_focusLostAt.append(
            QStringLiteral("%1 stroke %2").arg(QLatin1String(when)).arg(m_strokes));
    }
}
