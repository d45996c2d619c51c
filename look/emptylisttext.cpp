#include "emptylisttext.h"

#include "fontscale.h"
#include "readablecolors.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>

namespace {
constexpr int margin = 16;
} // namespace

EmptyListText::EmptyListText(QAbstractItemView* list, const QString& text)
    : QObject(list->viewport()) // which ends before the model, whose end would call back
    , m_list(list)
    , m_text(text)
{
    list->viewport()->installEventFilter(this);
    const QAbstractItemModel* model = list->model();
    connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(describeList()));
    connect(model, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(describeList()));
    connect(model, SIGNAL(modelReset()), this, SLOT(describeList()));
    describeList();
}

void EmptyListText::setText(const QString& text)
{
    m_text = text;
    describeList();
}

bool EmptyListText::eventFilter(QObject* watched, QEvent* event)
{
    // The list paints after this, but an empty one has nothing to lay over it.
    if (event->type() == QEvent::Paint && isWanted()) {
        paint();
    }
    return QObject::eventFilter(watched, event);
}

void EmptyListText::describeList()
{
    m_list->setAccessibleDescription(isWanted() ? m_text : QString());
    m_list->viewport()->update();
}

bool EmptyListText::isWanted() const
{
    return m_list->model()->rowCount(m_list->rootIndex()) == 0;
}

void EmptyListText::paint() const
{
    QWidget* ground = m_list->viewport();
    const int inset = scaledToFont(margin, m_list);
    QPainter painter(ground);
    painter.setFont(m_list->font());
    painter.setPen(quietText(m_list->palette()));
    painter.drawText(ground->rect().adjusted(inset, inset, -inset, -inset),
                     Qt::AlignCenter | Qt::TextWordWrap, m_text);
}
