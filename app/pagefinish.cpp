#include "pagefinish.h"

#include "ipagecontroller.h"
#include "welldone.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

// The title has no blank after the point, unlike the other eight; it is kept that way.
PageFinish::PageFinish(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : BasePage(tr("9.Ready to use"), 9, controller, doc, parent)
{
    auto* closeButton = new QPushButton(tr("Close"), this);
    closeButton->setObjectName(QStringLiteral("closeButton"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new WellDone(this), 1);
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
