#include "focusedcelldelegate.h"

#include "focusmark.h"
#include "ground.h"

void FocusedCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QStyle::State marks = option.state & (QStyle::State_HasFocus | QStyle::State_Selected);
    if (marks == QStyle::State_HasFocus && isDark(option.palette)) {
        fillFrame(*painter, option.rect, option.palette.color(QPalette::Text));
    }
}
