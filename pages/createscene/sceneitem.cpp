#include "sceneitem.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

SceneItem::SceneItem(const QPixmap& thumbnail, const QString& roomGroup, QWidget* parent)
    : QWidget(parent)
    , m_thumbnail(new QLabel(this))
    , m_removeButton(new QPushButton(tr("Remove"), this))
    , m_roomGroup(roomGroup)
{
    m_thumbnail->setPixmap(thumbnail);
    m_thumbnail->setAccessibleName(tr("Layout %1").arg(roomGroup));
    m_removeButton->setObjectName(QStringLiteral("removeButton"));
    m_removeButton->setAccessibleName(tr("Remove layout %1").arg(roomGroup));
    connect(m_removeButton, SIGNAL(clicked()), this, SIGNAL(removeClicked()));

    auto* layout = new QHBoxLayout(this);
    // The picture is as high as the row but for one pixel above and below.
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(m_thumbnail);
    layout->addWidget(m_removeButton);
    layout->addStretch();
}

QWidget* SceneItem::tabStop() const
{
    return m_removeButton;
}

const QString& SceneItem::roomGroup() const
{
    return m_roomGroup;
}

QPixmap SceneItem::thumbnail() const
{
    return m_thumbnail->pixmap(Qt::ReturnByValue);
}
