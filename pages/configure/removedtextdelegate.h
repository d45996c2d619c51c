#pragma once

#include "rowdelegate.h"

#include <QColor>

/// Draws texts that a row has in `textColor` in a gray that can be read on what lies behind them.
///
/// A selection has a text colour of its own, which would hide that the device was removed, and
/// removing is what selects the row.
class RemovedTextDelegate : public RowDelegate
{
    Q_OBJECT

public:
    static constexpr QColor textColor{0x80, 0x80, 0x80};

    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
