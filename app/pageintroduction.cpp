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
    // Made first, so that the keyboard begins there and not on "Close", where Return would end the
    // program that has just begun.
    auto* nextButton = new QPushButton(tr("Next"), this);
    nextButton->setObjectName(QStringLiteral("nextButton"));
    auto* closeButton = new QPushButton(tr("Close"), this);
    closeButton->setObjectName(QStringLiteral("closeButton"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new PageScroll(new Introduction(this), this), 1);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    row->addWidget(closeButton);
    row->addStretch();
    row->addWidget(nextButton);

    connect(closeButton, SIGNAL(clicked()), this, SLOT(closeButtonClicked()));
    connect(nextButton, SIGNAL(clicked()), this, SLOT(nextButtonClicked()));
    pressOnNextKey(this, nextButton);
}

void PageIntroduction::nextButtonClicked()
{
    controller().next();
}

void PageIntroduction::closeButtonClicked()
{
    controller().quit();
}
