#include "quietline.h"

#include "plaintooltip.h"

QuietLine::QuietLine(QWidget* parent)
    : SpokenLabel(parent)
{
    setObjectName(QStringLiteral("quietLine"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void QuietLine::say(const QStringList& sentences)
{
    const qsizetype more = sentences.size() - 1;
    const QString first = sentences.value(0);
    SpokenLabel::say(more > 0 ? tr("%1 And %2 more.").arg(first, QString::number(more)) : first);
    setToolTip(more > 0 ? plainToolTip(sentences.join(u'\n')) : QString());
}
