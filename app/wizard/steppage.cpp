#include "steppage.h"

#include "ipagecontroller.h"
#include "stepcontent.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

StepPage::StepPage(const QString& title, int pageNumber, StepContent* content, LeftButton left,
                   IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : BasePage(title, pageNumber, controller, doc, parent)
    , m_content(content)
{
    buildLayout(left);
    connect(m_content, SIGNAL(nextButtonEnabled(bool)), this, SLOT(setNextButtonEnabled(bool)));
}

void StepPage::enterFrom(int previousPageNumber)
{
    if (previousPageNumber < pageNumber()) {
        m_content->load();
    }
}

void StepPage::restoreFromDocument()
{
    m_content->load();
}

void StepPage::storeToDocument()
{
    m_content->store();
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
    m_content->reset();
}

void StepPage::nextButtonClicked()
{
    m_content->store();
    controller().next();
}

void StepPage::closeButtonClicked()
{
    controller().quit();
}

void StepPage::buildLayout(LeftButton left)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_content, 1);
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
