#pragma once

#include <QString>

class QAbstractButton;
class QWidget;

// The keys that turn pages, for hands without a mouse: Alt+Left and Alt+Right, on the page that is
// shown, wherever the focus is. A key that is held down counts once, so that it cannot run through
// several pages. The button's tool tip names its key.

/// Alt+Left presses `button` of `page`, unless it is disabled.
void pressOnBackKey(QWidget* page, QAbstractButton* button);

/// Alt+Right presses `button` of `page`, unless it is disabled.
void pressOnNextKey(QWidget* page, QAbstractButton* button);

/// Alt+Right calls `slot` of `page`, as SLOT() names it, where pressing depends on more.
void callOnNextKey(QWidget* page, const char* slot);

/// What the tool tip of a button says that Alt+Right presses.
QString nextKeyHint();
