#include "resumedialog.h"

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
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(new QLabel(tr("Please wait..."), this));
}

void ResumeDialog::reject() {}
