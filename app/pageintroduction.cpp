#include "pageintroduction.h"

#include "ipagecontroller.h"
#include "pagekeys.h"
#include "pagescroll.h"
#include "wizardpage.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

Introduction::Introduction(QWidget* parent)
    : PictureText(
          {tr("This tool helps generating preset settings for up to 4 Calyra solutions that make "
              "up a divide/combine space."),
           tr("The presets on an PX-HB include information on connected peripheral devices like "
              "speakers and microphones. This information not only includes the information on how "
              "to establish the Dante connections between devices, but also all settings for each "
              "of the devices that create the optimal environment for the specific configuration."),
           tr("This wizard allows to define the partitions and different room configurations for "
              "the divided and the combined rooms. It allows to group the devices on the network "
              "accordingly, and create the required preset information for each room "
              "configuration.")},
          QStringLiteral(":/image/floor.svg"), parent)
{
}

PageIntroduction::PageIntroduction(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : BasePage(tr("1. Introduction"), stepNumber(WizardPage::Introduction), controller, doc, parent)
{
    auto* closeButton = new QPushButton(tr("Close"), this);
    closeButton->setObjectName(QStringLiteral("closeButton"));
    m_nextButton = new QPushButton(tr("Next"), this);
    m_nextButton->setObjectName(QStringLiteral("nextButton"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new PageScroll(new Introduction(this), this), 1);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    row->addWidget(closeButton);
    row->addStretch();
    row->addWidget(m_nextButton);

    connect(closeButton, SIGNAL(clicked()), this, SLOT(closeButtonClicked()));
    connect(m_nextButton, SIGNAL(clicked()), this, SLOT(nextButtonClicked()));
    pressOnNextKey(this, m_nextButton);
}

/// The keyboard would begin on "Close", the first in line, where Return ends what has just begun.
void PageIntroduction::showEvent(QShowEvent* event)
{
    BasePage::showEvent(event);
    if (window()->focusWidget() == nullptr) {
        m_nextButton->setFocus();
    }
}

void PageIntroduction::nextButtonClicked()
{
    controller().next();
}

void PageIntroduction::closeButtonClicked()
{
    controller().quit();
}
