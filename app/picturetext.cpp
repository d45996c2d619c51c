#include "picturetext.h"

#include <QLabel>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QVBoxLayout>

namespace {

constexpr int firstGap = 20;

QLabel* makeParagraph(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

void addSpacer(QVBoxLayout* layout)
{
    layout->addSpacerItem(new QSpacerItem(10, 10, QSizePolicy::Minimum, QSizePolicy::Expanding));
}

} // namespace

PictureText::PictureText(const QStringList& texts, const QString& picture, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeParagraph(texts.at(0), this));
    layout->addSpacing(firstGap);
    layout->addWidget(makeParagraph(texts.at(1), this));
    layout->addWidget(makeParagraph(texts.at(2), this));
    addSpacer(layout);
    auto* image = new QSvgWidget(picture, this);
    image->setObjectName(QStringLiteral("picture"));
    // Where the texts leave little room it becomes smaller, and stays itself.
    image->renderer()->setAspectRatioMode(Qt::KeepAspectRatio);
    layout->addWidget(image, 0, Qt::AlignHCenter | Qt::AlignVCenter);
    addSpacer(layout);
}
