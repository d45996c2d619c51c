#pragma once

#include <QBasicTimer>
#include <QObject>

class DialogAnswerer;
class QTreeWidget;
class QWidget;
struct DemoDevice;

/// The player's view of the wizard: its window, what the current page shows, the lines that report
/// and the pictures that are kept. Widgets are found by their object names, as a stranger to the
/// code would look for them on the screen.
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
    QWidget* window() const { return m_window; }
    /// The page that is shown.
    QWidget* page() const;
    /// Whether the page that is shown is step `number`.
    bool isOnPage(int number) const;
    /// The visible table or list of this name on the current page.
    QTreeWidget* tree(const QString& name) const;
    /// The table that lists this device on the current page.
    QTreeWidget* tableOf(const DemoDevice& device) const;
    /// Clicks a button of the page; false when it is missing or disabled.
    bool press(const QString& buttonName);

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
    QWidget* m_window = nullptr;
};
