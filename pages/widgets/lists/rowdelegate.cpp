#include "rowdelegate.h"

#include <QWidget>

namespace {

constexpr int minRowHeight = 26;

} // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return FocusedCellDelegate::sizeHint(option, index).expandedTo({0, minRowHeight});
}

void RowDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                       const QModelIndex& /*index*/) const
{
    // One pixel of air keeps the widgets of neighbouring rows apart.
    const QSize cell = option.rect.size() - QSize(0, 2);
    QRect place(QPoint(), cell.boundedTo(editor->maximumSize()));
    place.moveCenter(option.rect.center());
    editor->setGeometry(place);
}
