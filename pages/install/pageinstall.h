#pragma once

#include "basepage.h"
#include "enteredwork.h"

#include <QPointer>

#include <optional>

class Install;
class QPushButton;
class QuietLine;

/// Frame of the installation step: its button installs until every hub is done, and then leads on.
class PageInstall : public BasePage
{
    Q_OBJECT

public:
    PageInstall(IPageController* controller, IDocAccessor* doc, QWidget* parent);

    void enterFrom(int previousPageNumber) override;
    void restoreFromDocument() override;

public Q_SLOTS:
    /// Goes back; running installations go on.
    void backButtonClicked();
    /// Starts the installation of every listed hub, or goes on when all are done.
    void executeButtonClicked();
    /// Sets the button and tells the wizard whether every listed hub is done with what is entered.
    void installStatusChanged();

private Q_SLOTS:
    void showNote();
    void nextKeyPressed();

private:
    void load();
    void buildLayout();
    void watchForChanges();
    void keepInstalledHall();
    void setExecuteEnabled(bool enable);
    void explainButton();

    Install* m_content;
    QPushButton* m_backButton;
    QuietLine* m_quietLine;
    QPushButton* m_executeButton;
    std::optional<EnteredWork> m_executedWork; ///< as of "Execute"; nothing once it was changed
    bool m_isHallKept = false;                 ///< since "Execute", or it could not be kept
    QPointer<QWidget> m_focusMeanwhile;        ///< has the focus that the disabled button had
};
