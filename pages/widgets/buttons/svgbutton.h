#pragma once

#include "pressbutton.h"

#include <QString>

/// A 20 x 20 button that is nothing but an SVG icon, in the colour of texts or, where that cannot
/// be told from what lies behind, in a gray that can; its ground shows only while it is held.
/// Its user sets the accessible name and the tool tip.
class SvgButton : public PressButton
{
    Q_OBJECT

public:
    /// `iconPath` is a file or a resource.
    explicit SvgButton(const QString& iconPath, QWidget* parent = nullptr);

    QSize sizeHint() const override { return size(); }

Q_SIGNALS:
    void clicked();

protected:
    void paintFace(QPainter& painter) override;
    void activate() override;

private:
    QString m_iconPath;
};
