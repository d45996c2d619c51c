#include "promptwatcher.h"

#include "hubdialog.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <utility>

namespace {

void click(HubDialog* dialog, const QString& name)
{
    auto* button = dialog->findChild<QPushButton*>(name);
    QVERIFY(button);
    QVERIFY(button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

PromptWatcher::PromptWatcher(Answer answer)
    : m_answer(std::move(answer))
{
    qApp->installEventFilter(this);
}

bool PromptWatcher::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = event->type() == QEvent::Show ? qobject_cast<HubDialog*>(watched) : nullptr;
    if (dialog) {
        ++m_count;
        const auto answer = [this, guarded = QPointer<HubDialog>(dialog), count = m_count] {
            if (guarded) {
                m_answer(guarded, count);
            }
        };
        QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void submitPassword(HubDialog* dialog, const QString& password)
{
    for (auto* edit : dialog->findChildren<QLineEdit*>()) {
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, password);
    }
    const bool initial = dialog->objectName() == QLatin1String("initialPasswordDialog");
    click(dialog, initial ? QStringLiteral("submitButton") : QStringLiteral("loginButton"));
}

void cancelPrompt(HubDialog* dialog)
{
    click(dialog, QStringLiteral("cancelButton"));
}
