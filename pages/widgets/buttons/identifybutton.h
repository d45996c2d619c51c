#pragma once

#include "pressbutton.h"

#include <QString>

/// The 20 x 20 icon button beside a device that makes the device show itself.
class IdentifyButton : public PressButton
{
    Q_OBJECT

public:
    /// `ipAddress` is the device's; it is handed back by clicked().
    explicit IdentifyButton(const QString& ipAddress, QWidget* parent = nullptr);

    QSize sizeHint() const override { return size(); }

Q_SIGNALS:
    void clicked(const QString& ipAddress);

protected:
    void paintFace(QPainter& painter) override;
    void activate() override;

private:
    QString m_ipAddress;
};
