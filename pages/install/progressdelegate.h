#pragma once

#include "rowdelegate.h"

/// Draws a quiet bar behind the text of a cell, as long as the part of the work that is done.
class ProgressDelegate : public RowDelegate
{
    Q_OBJECT

public:
    /// Holds the part as a number from 0 to 1; no bar without one.
    static constexpr int partRole = Qt::UserRole;

    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
