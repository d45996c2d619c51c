#pragma once

#include "rowdelegate.h"

#include <QWidget>

class SvgButton;

/// Draws device labels that have a pencil at their right end: a long label ends in "..." before
/// the pencil instead of running on beneath it.
class DeviceLabelDelegate : public RowDelegate
{
    Q_OBJECT

public:
    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

/// The pencil at the right end of a device's label; it renames the device. Lies over the label's
/// cell and lets the label, and clicks on it, through.
class DeviceLabelEditIcon : public QWidget
{
    Q_OBJECT

public:
    explicit DeviceLabelEditIcon(QWidget* parent = nullptr);

    /// Shows or hides the pencil.
    void setIconVisible(bool visible);
    /// Tells screen readers which device the pencil renames.
    void setDeviceLabel(const QString& label);

Q_SIGNALS:
    void iconClicked();

private:
    SvgButton* m_button;
};
