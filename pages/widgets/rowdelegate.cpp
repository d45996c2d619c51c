#include "rowdelegate.h"

#include <QWidget>

namespace {

constexpr int minimumRowHeight = 26;

} // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, minimumRowHeight});
}

void RowDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                       const QModelIndex& /*index*/) const
{
    QRect place(QPoint(), option.rect.size().boundedTo(editor->maximumSize()));
    place.moveCenter(option.rect.center());
    editor->setGeometry(place);
}
