#pragma once

#include <QObject>
#include <QPoint>

class QDialog;

/// Gives a dialog its place each time it is shown: over the middle of the window that it belongs
/// to, a step beside other dialogs that lie there already, and inside the screen.
///
/// While it is shown it goes where the window goes: a system may place the window only after a
/// dialog was opened over it.
class DialogPlace : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `dialog`; one without a parent is left to the system.
    explicit DialogPlace(QDialog* dialog);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPoint middle() const;
    bool isTaken(QPoint place) const;
    QPoint freePlace() const;
    void open();
    void follow();

    QDialog* m_dialog;
    QPoint m_middle; ///< of the window, when the dialog was placed last
};
