#pragma once

#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

/// Notes which part of a widget is painted from now on.
struct PaintWatch : QObject
{
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted |= static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    QRegion painted;
};
