#include "pageintroduction.h"

#include "introduction.h"
#include "ipagecontroller.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

PageIntroduction::PageIntroduction(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : BasePage(tr("1. Introduction"), 1, controller, doc, parent)
{
    auto* closeButton = new QPushButton(tr("Close"), this);
    closeButton->setObjectName(QStringLiteral("closeButton"));
    auto* nextButton = new QPushButton(tr("Next"), this);
    nextButton->setObjectName(QStringLiteral("nextButton"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new Introduction(this), 1);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    row->addWidget(closeButton);
    row->addStretch();
    row->addWidget(nextButton);

    connect(closeButton, SIGNAL(clicked()), this, SLOT(closeButtonClicked()));
    connect(nextButton, SIGNAL(clicked()), this, SLOT(nextButtonClicked()));
}

void PageIntroduction::nextButtonClicked()
{
    controller().next();
}

void PageIntroduction::closeButtonClicked()
{
    controller().quit();
}
