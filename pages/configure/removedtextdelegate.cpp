#include "removedtextdelegate.h"

#include "contrast.h"

namespace {

QPalette::ColorGroup groupOf(QStyle::State state)
{
    if (!(state & QStyle::State_Enabled)) {
        return QPalette::Disabled;
    }
    return state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

void makeReadable(QStyleOptionViewItem* option, QPalette::ColorRole text,
                  QPalette::ColorRole ground)
{
    const QColor behind = option->palette.color(groupOf(option->state), ground);
    option->palette.setColor(text, readableGray(RemovedTextDelegate::textColor, behind));
}

} // namespace

void RemovedTextDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    RowDelegate::initStyleOption(option, index);
    if (index.data(Qt::ForegroundRole).value<QBrush>().color() == textColor) {
        makeReadable(option, QPalette::Text, QPalette::Base);
        makeReadable(option, QPalette::HighlightedText, QPalette::Highlight);
    }
}
