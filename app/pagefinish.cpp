#include "pagefinish.h"

#include "ipagecontroller.h"
#include "pagescroll.h"
#include "wizardpage.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

// The first paragraph is a blank on purpose: it keeps an empty line above the advice.
WellDone::WellDone(QWidget* parent)
    : PictureText(
          {tr(" "),
           tr("To improve audio performance we recommend running autotuning and manual acoustic "
              "adjustment as needed for each room combination. Remember to safe the presets after "
              "the autotune or manual change in the respective PX-HB administrative interfaces."),
           tr("When recalling a preset all PX-HBs representing that room layout need to be "
              "recalled. If not all PX-HBs are recalled to the correct room layout, even if the "
              "PX-HB is not part of that specific layout, the system might malfunction.")},
          QStringLiteral(":/image/Well_done.svg"), parent)
{
}

// The title has no blank after the point, unlike the other eight; it is kept that way.
PageFinish::PageFinish(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : BasePage(tr("9.Ready to use"), stepNumber(WizardPage::Finish), controller, doc, parent)
{
    auto* closeButton = new QPushButton(tr("Close"), this);
    closeButton->setObjectName(QStringLiteral("closeButton"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new PageScroll(new WellDone(this), this), 1);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    row->addStretch();
    row->addWidget(closeButton);

    connect(closeButton, SIGNAL(clicked()), this, SLOT(closeButtonClicked()));
}

void PageFinish::closeButtonClicked()
{
    controller().quit();
}
