#pragma once

#include "enteredwork.h"
#include "ipagecontroller.h"

#include <QWidget>

#include <optional>

class BasePage;
class ConfigurationFile;
class DeviceDetector;
class IDocAccessor;
class QStackedWidget;
class ResumeDialog;
class SpokenLabel;
class WindowPlace;

/// The program's only window: a title line above the stack of wizard pages.
///
/// It makes the pages one by one as the user moves forward, decides at start whether to ask for a
/// network interface, enters every device that is found into the document, and keeps unfinished
/// work in the resume file between two runs.
class MainWindow : public QWidget, public IPageController
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the window, and so does `file`: with one the wizard opens
    /// that file's work and saves into it, and the resume file is neither read nor written.
    MainWindow(QWidget* parent, IDocAccessor* doc, ConfigurationFile* file = nullptr);

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

private Q_SLOTS:
    void openGuide();

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

    bool findWork();
    void loadWork();
    void loadFile();
    void tellUnreadableFile();
    void loadResumeFile();
    void showLoadedWork();
    void restorePages();
    void offerToRemoveResumeFile();
    bool saveWork();
    bool saveFile() const;

    IDocAccessor* m_doc;
    ConfigurationFile* m_file;
    bool m_isFileRead = false; ///< or it was tried
    SpokenLabel* m_titleLabel;
    QStackedWidget* m_pageStack;
    WindowPlace* m_place;
    int m_currentIndex = 0;
    DeviceDetector* m_detector = nullptr;
    int m_resumeTimerId = 0;
    ResumeDialog* m_resumeDialog = nullptr;
    std::optional<EnteredWork> m_installedWork; ///< what the hubs hold; nothing while unknown
    std::optional<EnteredWork> m_fileWork;      ///< what the file holds; nothing unless all of it
};
