#include "quietline.h"

#include <QAccessibleWidget>

namespace {

class QuietLineAccessible : public QAccessibleWidget
{
public:
    explicit QuietLineAccessible(QuietLine* line)
        : QAccessibleWidget(line, QAccessible::StatusBar)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? static_cast<QuietLine*>(widget())->text()
                                         : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* createAccessible(const QString& /*className*/, QObject* object)
{
    auto* line = qobject_cast<QuietLine*>(object);
    return line ? new QuietLineAccessible(line) : nullptr;
}

} // namespace

QuietLine::QuietLine(QWidget* parent)
    : QLabel(parent)
{
    // Needed once; more calls with the same function do nothing.
    QAccessible::installFactory(createAccessible);
    setObjectName(QStringLiteral("quietLine"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void QuietLine::say(const QStringList& sentences)
{
    const qsizetype more = sentences.size() - 1;
    const QString first = sentences.value(0);
    // A label whose text changes tells screen readers of its new name by itself.
    setText(more > 0 ? tr("%1 And %2 more.").arg(first, QString::number(more)) : first);
    setToolTip(more > 0 ? sentences.join(u'\n') : QString());
}
