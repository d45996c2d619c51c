#pragma once

#include <QObject>
#include <QSize>

/// Keeps a window within its screen: its limits grow in proportion to its font, give way where the
/// screen ends, and follow when the font or the screen becomes another.
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `window`; `least` and `largest` are meant for the usual font.
    WindowPlace(QWidget* window, QSize least, QSize largest);

    /// Gives the window a size from another time, as far as the present screen has room for it.
    void restore(QSize size);

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void adjust();
    void fit();

private:
    bool isFree() const;
    QSize leastSize() const;
    void setLimits();
    void bringInside();
    void watchScreen();

    QWidget* m_window;
    QSize m_least;
    QSize m_largest;
};
