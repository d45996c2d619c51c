#pragma once

#include "rowdelegate.h"

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
