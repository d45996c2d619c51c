#include "devicelabel.h"

#include "svgbutton.h"

#include <QHBoxLayout>

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

DeviceLabelEditIcon::DeviceLabelEditIcon(QWidget* parent)
    : QWidget(parent)
    , m_button(new SvgButton(QStringLiteral(":/image/icon_edit_24.svg"), this))
{
    m_button->setObjectName(QStringLiteral("editIcon"));
    m_button->setToolTip(tr("Change Name"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(m_button);
    connect(m_button, SIGNAL(clicked()), this, SIGNAL(iconClicked()));
}

void DeviceLabelEditIcon::setIconVisible(bool visible)
{
    if (visible == m_button->isHidden()) {
        m_button->setVisible(visible);
    }
}

void DeviceLabelEditIcon::setDeviceLabel(const QString& label)
{
    m_button->setAccessibleName(tr("Change name of %1").arg(label));
}
