#include "modalanswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>

namespace {

constexpr int lookEveryMs = 10;

QString plainText(const QAbstractButton* button)
{
    return button->text().remove(QLatin1Char('&'));
}

} // namespace

ModalAnswer::ModalAnswer(std::function<void(QWidget*)> act)
    : m_act(std::move(act))
{
    m_timer.start(lookEveryMs, this);
}

ModalAnswer::ModalAnswer(const QString& buttonText)
    : ModalAnswer([buttonText](QWidget* dialog) { clickButton(dialog, buttonText); })
{
}

void ModalAnswer::timerEvent(QTimerEvent* /*event*/)
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || m_shown) {
        return;
    }
    m_timer.stop();
    m_shown = true;
    m_title = dialog->windowTitle();
    if (const auto* box = qobject_cast<QMessageBox*>(dialog)) {
        m_text = box->text();
        for (const QAbstractButton* button : box->buttons()) {
            m_buttons.append(plainText(button));
        }
        m_buttons.sort();
    }
    m_act(dialog);
}

void clickButton(QWidget* dialog, const QString& text)
{
    for (auto* button : dialog->findChildren<QAbstractButton*>()) {
        if (plainText(button) == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no button \"%1\"").arg(text)));
}
