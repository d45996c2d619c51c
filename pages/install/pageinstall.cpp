#include "pageinstall.h"

#include "install.h"
#include "ipagecontroller.h"
#include "kepthall.h"
#include "pagekeys.h"
#include "pagescroll.h"
#include "quietline.h"
#include "wizardpage.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

PageInstall::PageInstall(IPageController* controller, IDocAccessor* doc, QWidget* parent)
    : BasePage(tr("8. Install Presets"), stepNumber(WizardPage::Install), controller, doc, parent)
    , m_content(new Install(doc, this))
    , m_backButton(new QPushButton(tr("Back"), this))
    , m_quietLine(new QuietLine(this))
    , m_executeButton(new QPushButton(tr("Execute"), this))
{
    m_backButton->setObjectName(QStringLiteral("backButton"));
    m_executeButton->setObjectName(QStringLiteral("executeButton"));
    buildLayout();
    connect(m_backButton, SIGNAL(clicked()), this, SLOT(backButtonClicked()));
    connect(m_executeButton, SIGNAL(clicked()), this, SLOT(executeButtonClicked()));
    connect(m_content, SIGNAL(statusChanged()), this, SLOT(installStatusChanged()));
    connect(m_content, SIGNAL(noteChanged()), this, SLOT(showNote()));
    connect(m_content, SIGNAL(announced(QString)), m_quietLine, SLOT(announce(QString)));
    pressOnBackKey(this, m_backButton);
    callOnNextKey(this, SLOT(nextKeyPressed()));
}

void PageInstall::buildLayout()
{
    auto* row = new QHBoxLayout;
    row->addWidget(m_backButton);
    row->addWidget(m_quietLine, 1);
    row->addWidget(m_executeButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new PageScroll(m_content, this), 1);
    layout->addLayout(row);
}

void PageInstall::enterFrom(int previousPageNumber)
{
    if (previousPageNumber < pageNumber()) {
        load();
    }
}

void PageInstall::restoreFromDocument()
{
    load();
}

void PageInstall::load()
{
    m_content->load();
    // What was installed before the user went back may differ from what is entered now.
    m_executeButton->setText(tr("Execute"));
    setExecuteEnabled(!m_content->isBusy());
    watchForChanges();
}

void PageInstall::backButtonClicked()
{
    controller().back();
    m_executeButton->setText(tr("Execute"));
    explainButton();
}

void PageInstall::executeButtonClicked()
{
    if (m_executeButton->text() == tr("Execute")) {
        m_executedWork = enteredWork(doc());
        m_isHallKept = false;
        m_content->install();
        installStatusChanged();
    } else {
        controller().next();
    }
}

void PageInstall::installStatusChanged()
{
    const bool done = m_content->isDone();
    if (done) {
        m_executeButton->setText(tr("Next"));
    }
    watchForChanges();
    controller().setInstallDone(done && m_executedWork);
    if (done && m_executedWork) {
        keepInstalledHall();
    }
    setExecuteEnabled(!m_content->isBusy());
}

/// What is noted stands in for what is missing: there is one only without the other.
void PageInstall::showNote()
{
    const QString note = m_content->note();
    m_quietLine->say(note.isEmpty() ? m_content->missing() : QStringList{note});
}

/// Hubs are changed by a press on the button that says so, and by no key that leads from page to
/// page.
void PageInstall::nextKeyPressed()
{
    if (m_executeButton->text() == tr("Next")) {
        m_executeButton->click();
    }
}

/// Hubs get their files one after the other, built from what is entered at the moment. If that
/// changes meanwhile, nobody knows which of them hold what. It is looked at whenever a hub is done
/// and whenever this step is entered: what is changed and taken back between two of these moments
/// is not seen.
void PageInstall::watchForChanges()
{
    if (m_executedWork && *m_executedWork != enteredWork(doc())) {
        m_executedWork.reset();
    }
}

/// Once for each installation, though hubs that are listed no longer may end after the last one.
void PageInstall::keepInstalledHall()
{
    if (std::exchange(m_isHallKept, true)) {
        return;
    }
    const QString path = keepHall(doc(), window()->size());
    if (!path.isEmpty()) {
        m_content->tellKeptFile(path);
    }
}

/// A disabled button loses the focus to whatever comes next. Who works by key gets it back, unless
/// they have gone elsewhere meanwhile.
void PageInstall::setExecuteEnabled(bool enable)
{
    const bool hadFocus = window()->focusWidget() == m_executeButton;
    m_executeButton->setEnabled(enable);
    explainButton();
    if (enable) {
        if (m_focusMeanwhile && m_focusMeanwhile == window()->focusWidget() && isVisible()) {
            m_executeButton->setFocus();
        }
        m_focusMeanwhile.clear();
    } else if (hadFocus) {
        m_focusMeanwhile = window()->focusWidget();
    }
}

void PageInstall::explainButton()
{
    const bool waits = !m_executeButton->isEnabled();
    const QString reason = waits ? tr("Wait until every hub is done or has failed.") : QString();
    const bool leadsOn = m_executeButton->text() == tr("Next");
    m_executeButton->setToolTip(leadsOn && !waits ? nextKeyHint() : reason);
    m_executeButton->setAccessibleDescription(reason);
}
