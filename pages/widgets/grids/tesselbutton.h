#pragma once

#include "pressbutton.h"

/// The 15 x 15 link box between two rooms: checked, it shows a plus sign and the rooms are one.
class TesselButton : public PressButton
{
    Q_OBJECT

public:
    explicit TesselButton(QWidget* parent = nullptr);

    bool isCheckable() const override { return true; }
    bool isChecked() const override { return m_checked; }
    /// Checks or unchecks without clicked().
    void setChecked(bool checked);

    QSize sizeHint() const override { return size(); }

Q_SIGNALS:
    /// After every release, with the new state.
    void clicked(bool on);

protected:
    void paintFace(QPainter& painter) override;
    void activate() override;

private:
    bool m_checked = false;
};
