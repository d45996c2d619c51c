#pragma once

#include <QObject>

/// F1, wherever the keyboard is: on a page, in a dialog over it, in a menu. No shortcut reaches as
/// far, since dialogs keep those of other windows back.
class GuideKey : public QObject
{
    Q_OBJECT

public:
    /// Watches the keys of the whole program.
    explicit GuideKey(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The key was pressed; one that is held down counts once.
    void pressed();
};
