#pragma once

#include <QAnyStringView>
#include <QBasicTimer>
#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

/// Answers modal dialogs as they come up, whichever code opened them: the dialogs block the code
/// that opened them, so somebody else has to press their buttons. Dialogs go by their object names,
/// those without one by their titles. Of several answerers the youngest that knows a dialog
/// answers it.
///
/// Qt's warning log tells, and so fails a test and the demo: a dialog that no answerer knows, which
/// is rejected then, and an expected one that has not come when its answerer goes.
class DialogAnswerer : public QObject
{
    Q_OBJECT

public:
    /// Is called once each time a dialog comes up; it may leave the dialog open.
    using Answer = std::function<void(QWidget*)>;
    /// Whether a dialog in front is to be answered yet; asked again and again until it is.
    using Ready = std::function<bool(QWidget*)>;

    /// Knows no dialog yet. Looks for dialogs at this interval, so long may each be seen.
    explicit DialogAnswerer(QObject* parent = nullptr, int lookEveryMs = 1);
    /// Expects one dialog, as expect() does.
    DialogAnswerer(QAnyStringView name, const Answer& answer);
    ~DialogAnswerer() override;

    /// From now on dialogs of this name are answered so, as often as they come.
    void onDialog(QAnyStringView name, const Answer& answer, const Ready& ready = {});
    /// A dialog of this name must come, once.
    void expect(QAnyStringView name, const Answer& answer);

    /// How often a dialog of this name has been answered since it was last told how.
    int answered(QAnyStringView name) const;
    /// Text of the last message box that came up, and the texts of its buttons in alphabetical
    /// order: where each stands is up to the platform.
    QString text() const { return m_text; }
    QStringList buttons() const { return m_buttons; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Known
    {
        QString name;
        Answer answer;
        Ready ready;
        bool isOnce = false;
        int answered = 0;
    };

    static DialogAnswerer* knower(const QWidget* dialog);
    void know(const Known& dialog);
    qsizetype indexOf(const QString& name) const;
    bool knows(const QWidget* dialog) const;
    void take(QWidget* dialog);
    void answer(QWidget* dialog);
    void refuse(QWidget* dialog);
    void note(const QWidget* dialog);

    QBasicTimer m_timer;
    int m_lookEveryMs;
    QList<Known> m_known;
    QString m_text;
    QStringList m_buttons;
};

/// The answer of pressing the button with this text, without mnemonic.
DialogAnswerer::Answer pressing(QAnyStringView button);
