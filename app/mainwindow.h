#pragma once

#include "enteredwork.h"
#include "ipagecontroller.h"

#include <QWidget>

#include <optional>

class BasePage;
class DeviceDetector;
class IDocAccessor;
class QStackedWidget;
class ResumeDialog;
class SpokenLabel;

/// The program's only window: a title line above the stack of wizard pages.
///
/// It makes the pages one by one as the user moves forward, decides at start whether to ask for a
/// network interface, enters every device that is found into the document, and keeps unfinished
/// work in the resume file between two runs.
class MainWindow : public QWidget, public IPageController
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the window.
    MainWindow(QWidget* parent, IDocAccessor* doc);

    void next() override;
    void back() override;
    void quit() override;
    void setInstallDone(bool done) override;

public Q_SLOTS:
    /// Enters the device that was found at this address into the document, which may refuse it,
    /// unless one of this address is there already.
    void notifyDetectDevice(const QString& ipAddress);

protected:
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildLayout();
    BasePage* appendPage(int index);
    BasePage* pageAt(int index) const;
    void enterCurrentPage(const BasePage* previous);
    void showCurrentPage();
    bool isAnythingToSave() const;

    void chooseInterface();
    void startDiscovery();
    void waitForSavedDevices();

    void loadResumeFile();
    void restorePages();
    void offerToRemoveResumeFile();
    void saveResumeFile();

    IDocAccessor* m_doc;
    SpokenLabel* m_titleLabel;
    QStackedWidget* m_pageStack;
    int m_currentIndex = 0;
    DeviceDetector* m_detector = nullptr;
    int m_resumeTimerId = 0;
    ResumeDialog* m_resumeDialog = nullptr;
    std::optional<EnteredWork> m_installedWork; ///< what the hubs hold; nothing while unknown
};
