#pragma once

#include <QBasicTimer>
#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>

class QWidget;

/// Answers modal dialogs as they come up, whichever code opened them: the dialogs block the code
/// that opened them, so somebody else has to press their buttons.
class DialogAnswerer : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(QWidget*)>;

    explicit DialogAnswerer(QObject* parent);

    /// From now on dialogs with this object name are answered by `answer`, which is called once
    /// each time one is shown. Dialogs without a name go by their window title.
    void onDialog(const QString& name, const Answer& answer);

    /// How often a dialog of this name has been answered.
    int answered(const QString& name) const;

protected:
    void timerEvent(QTimerEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QBasicTimer m_timer;
    QHash<QString, Answer> m_answers;
    QHash<QString, int> m_counts;
    QSet<const QObject*> m_done;
};
