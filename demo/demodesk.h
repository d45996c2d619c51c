#pragma once

#include "wizardhands.h"

#include <QBasicTimer>
#include <QObject>

#include <optional>

class DialogAnswerer;
class QWidget;

/// The player's desk: the wizard's window, whoever answers its dialogs, the lines that report and
/// the pictures that are kept.
class DemoDesk : public QObject
{
    Q_OBJECT

public:
    DemoDesk(const QString& pictureFolder, QObject* parent);

    /// Waits for the wizard's window, and for the interface dialog before it to be answered.
    bool waitForWindow();

    DialogAnswerer& dialogs() const { return *m_dialogs; }
    /// From now on the interface dialog is answered with the interface that leads to the hall.
    void answerInterfaceDialog();
    /// The wizard's window, once it was waited for, and hands on it.
    QWidget* window() const { return m_hands->window(); }
    const WizardHands& hands() const { return *m_hands; }
    /// Clicks a button of the page; false when it is disabled.
    bool press(QAnyStringView button);
    /// The same for "Next", which has to lead to step `number`.
    bool goOnTo(int number);

    /// `size` as far as the wizard's window can have it on this screen.
    QSize sizeOnScreen(QSize size) const;

    /// Keeps a picture of the wizard's window, or of another one.
    void picture(const QString& name);
    void pictureOf(QWidget* window, const QString& name);

    /// Reports a line.
    void say(const QString& line);
    /// Reports a finished step; always true.
    bool done(int step, const QString& what);
    /// Reports what went wrong and keeps a picture of it; always false.
    bool failed(const QString& why);

    /// Lets the windows catch up with what was done to them.
    static void letPaint();

protected:
    /// Nothing has happened for far too long: says so and ends the program.
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_watchdog;
    QString m_pictureFolder;
    DialogAnswerer* m_dialogs;
    std::optional<WizardHands> m_hands;
};
