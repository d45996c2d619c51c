#include "devicelabeldelegate.h"

namespace {

constexpr int marginsAndPencil = 30;

} // namespace

void DeviceLabelDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    RowDelegate::initStyleOption(option, index);
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight,
                                                  option->rect.width() - marginsAndPencil);
}
