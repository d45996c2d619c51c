#include "steppage.h"

#include "ipagecontroller.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

void StepPage::enterFrom(int previousPageNumber)
{
    if (previousPageNumber < pageNumber()) {
        load();
    }
}

void StepPage::restoreFromDocument()
{
    load();
}

void StepPage::storeToDocument()
{
    store();
}

void StepPage::setNextButtonEnabled(bool enable)
{
    m_nextButton->setEnabled(enable);
}

void StepPage::backButtonClicked()
{
    controller().back();
}

void StepPage::resetButtonClicked()
{
    reset();
}

void StepPage::nextButtonClicked()
{
    store();
    controller().next();
}

void StepPage::closeButtonClicked()
{
    controller().quit();
}

void StepPage::buildFrame(QWidget* content, LeftButton left)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content, 1);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    if (left == LeftButton::Close) {
        addButton(row, tr("Close"), QStringLiteral("closeButton"), SLOT(closeButtonClicked()));
    } else {
        addButton(row, tr("Back"), QStringLiteral("backButton"), SLOT(backButtonClicked()));
    }
    addButton(row, tr("Reset"), QStringLiteral("resetButton"), SLOT(resetButtonClicked()));
    row->addStretch();
    m_nextButton =
        addButton(row, tr("Next"), QStringLiteral("nextButton"), SLOT(nextButtonClicked()));
}

QPushButton* StepPage::addButton(QHBoxLayout* row, const QString& text, const QString& name,
                                 const char* slot)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    connect(button, SIGNAL(clicked()), this, slot);
    row->addWidget(button);
    return button;
}
