#pragma once

#include "pressbutton.h"

#include <QString>

/// Takes a device out of a device set, and back in: reads "Remove", or "Revert" once removed.
class RemoveButton : public PressButton
{
    Q_OBJECT

public:
    explicit RemoveButton(QWidget* parent = nullptr);

    bool isRemoved() const { return m_removed; }
    /// What stands on it.
    QString text() const;
    /// Sets the state without clicked().
    void setRemoved(bool removed);

    /// Names the device for whoever hears the button rather than seeing its row: the accessible
    /// name becomes "Remove Hub-A" instead of "Remove".
    void setDevice(const QString& label);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// After every release, with the new state.
    void clicked(bool on);

protected:
    void paintFace(QPainter& painter) override;
    void activate() override;

private:
    void updateTexts();

    QString m_device;
    bool m_removed = false;
};
