#pragma once

#include "spokenlabel.h"

/// The line between a page's buttons that says what is still missing or what went wrong. Empty
/// while there is nothing to say. Screen readers hear from it what it begins to say, and what else
/// happens on the page.
class QuietLine : public SpokenLabel
{
    Q_OBJECT

public:
    explicit QuietLine(QWidget* parent);

    /// Shows the first of `sentences` and how many more there are, which the tool tip tells; none
    /// empties the line.
    void say(const QStringList& sentences);
};
