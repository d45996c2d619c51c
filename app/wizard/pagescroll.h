#pragma once

#include <QScrollArea>

/// Shows the content of a page above the page's buttons: over the whole room that there is, or,
/// where that is less than the content needs, a part of it that scrolls, so that the buttons stay
/// in sight. Whatever the keyboard comes to is scrolled into sight.
class PageScroll : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes `content` over.
    PageScroll(QWidget* content, QWidget* parent);

    QSize sizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void showFocus(QWidget* before, QWidget* now);

private:
    QSize neededIn(int width) const;
    void fitContent();
};
