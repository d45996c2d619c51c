#pragma once

#include <QObject>

class QColor;
class QPalette;
class QWidget;

/// The colour for a text that is to step back behind the others of a field or list: half-way
/// between its text and its ground where that can be read, else as near to that as it can.
QColor quietText(const QPalette& palette);

/// Keeps the texts of a field or a list readable that many palettes make too pale: what stands in
/// an empty field, and what is selected. Only the ground of what is selected changes, by as little
/// as it takes. Follows the palette, also while the widget is shown.
class ReadableColors : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `widget`, which has a parent.
    explicit ReadableColors(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void adjust();

    QWidget* m_widget;
};
