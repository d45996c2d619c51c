#include "resumedialog.h"

#include "dialogplace.h"
#include "fontscale.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr int margin = 20;
} // namespace

ResumeDialog::ResumeDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("resumeDialog"));
    setWindowTitle(QStringLiteral("Resume"));
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Please wait..."), this));
    setMargins();
    new DialogPlace(this);
}

void ResumeDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        setMargins();
    }
    QDialog::changeEvent(event);
}

void ResumeDialog::setMargins()
{
    const int width = scaledToFont(margin, this);
    layout()->setContentsMargins(width, width, width, width);
}

void ResumeDialog::reject() {}
