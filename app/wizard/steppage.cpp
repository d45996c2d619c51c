#include "steppage.h"

#include "ipagecontroller.h"
#include "pagekeys.h"
#include "pagescroll.h"
#include "plaintooltip.h"
#include "quietline.h"
#include "stepcontent.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

StepPage::StepPage(const QString& title, int pageNumber, StepContent* content, LeftButton left,
                   IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : BasePage(title, pageNumber, controller, doc, parent)
    , m_content(content)
    , m_quietLine(new QuietLine(this))
{
    buildLayout(left);
    connect(m_content, SIGNAL(nextButtonEnabled(bool)), this, SLOT(setNextButtonEnabled(bool)));
    connect(m_content, SIGNAL(missingChanged()), this, SLOT(showMissing()));
    connect(m_content, SIGNAL(announced(QString)), m_quietLine, SLOT(announce(QString)));
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
    showMissing();
}

void StepPage::showMissing()
{
    const QStringList missing = m_nextButton->isEnabled() ? QStringList() : m_content->missing();
    m_quietLine->say(missing);
    m_nextButton->setToolTip(missing.isEmpty() ? nextKeyHint() : plainToolTip(missing.join(u'\n')));
    m_nextButton->setAccessibleDescription(missing.join(u' '));
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
    layout->addWidget(new PageScroll(m_content, this), 1);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    if (left == LeftButton::Close) {
        addButton(row, tr("Close"), QStringLiteral("closeButton"), SLOT(closeButtonClicked()));
    } else {
        pressOnBackKey(this, addButton(row, tr("Back"), QStringLiteral("backButton"),
                                       SLOT(backButtonClicked())));
    }
    addButton(row, tr("Reset"), QStringLiteral("resetButton"), SLOT(resetButtonClicked()));
    row->addWidget(m_quietLine, 1);
    m_nextButton =
        addButton(row, tr("Next"), QStringLiteral("nextButton"), SLOT(nextButtonClicked()));
    pressOnNextKey(this, m_nextButton);
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
