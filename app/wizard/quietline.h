#pragma once

#include <QLabel>

/// The line between a page's buttons that says what is still missing or what went wrong. Empty
/// while there is nothing to say.
///
/// To screen readers it is a status bar: what it begins to say is told without being asked for.
class QuietLine : public QLabel
{
    Q_OBJECT

public:
    explicit QuietLine(QWidget* parent);

    /// Shows the first of `sentences` and how many more there are, which the tool tip tells; none
    /// empties the line.
    void say(const QStringList& sentences);
};
