#include "mainwindow.h"

#include "accessiblerole.h"
#include "basepage.h"
#include "configurationfile.h"
#include "devicedetector.h"
#include "devicequeries.h"
#include "guide.h"
#include "guidekey.h"
#include "idocaccessor.h"
#include "networkdialog.h"
#include "newfile.h"
#include "pagefactory.h"
#include "resumedialog.h"
#include "sessionqueries.h"
#include "spokenlabel.h"
#include "windowevents.h"
#include "windowplace.h"
#include "wizardpage.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTimerEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize minWindowSize(800, 600);
constexpr QSize maxWindowSize(1200, 1200);
constexpr qreal titlePointSize = 14.0;
// Time for discovery to find the devices that the saved configuration names.
constexpr int resumeDelayMs = 5000;
constexpr int installIndex = int(WizardPage::Install);

QString resumeFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::HomeLocation) +
           QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel");
}

QString resumePath()
{
    return resumeFolder() + QStringLiteral("/resume.dat");
}

} // namespace

MainWindow::MainWindow(QWidget* parent, IDocAccessor* doc, ConfigurationFile* file)
    : QWidget(parent)
    , m_doc(doc)
    , m_file(file)
    , m_titleLabel(new SpokenLabel(this))
    , m_pageStack(new QStackedWidget(this))
    , m_place(new WindowPlace(this, minWindowSize, maxWindowSize))
{
    setAccessibleRole(this, QAccessible::Window);
    setWindowTitle(tr("Divide / Combine Room Wizard"));
    // Of all windows: some boxes belong to none.
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/image/tessel.svg")));
    buildLayout();
    connect(new GuideKey(this), SIGNAL(pressed()), this, SLOT(openGuide()));
    appendPage(0);
    showCurrentPage();
    if (nicIndex(*m_doc) == 0) {
        QCoreApplication::postEvent(this, new ShowNetworkDialogEvent);
    } else if (findWork()) {
        loadWork();
    }
}

void MainWindow::buildLayout()
{
    m_titleLabel->setObjectName(QStringLiteral("titleLabel"));
    QFont titleFont = font();
    titleFont.setPointSizeF(titlePointSize);
    m_titleLabel->setFont(titleFont);
    m_titleLabel->setToolTip(tr("F1 opens the guide"));
    m_pageStack->setObjectName(QStringLiteral("pageStack"));
    m_pageStack->setFrameStyle(0);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_pageStack, 1);
}

void MainWindow::next()
{
    const BasePage* previous = pageAt(m_currentIndex);
    if (m_currentIndex < pageCount - 1) {
        ++m_currentIndex;
    }
    if (m_currentIndex >= m_pageStack->count()) {
        appendPage(m_currentIndex);
    }
    enterCurrentPage(previous);
}

void MainWindow::back()
{
    const BasePage* previous = pageAt(m_currentIndex);
    if (m_currentIndex > 0) {
        --m_currentIndex;
    }
    enterCurrentPage(previous);
}

void MainWindow::quit()
{
    QCoreApplication::quit();
}

void MainWindow::setInstallDone(bool done)
{
    m_installedWork = done ? std::optional(enteredWork(*m_doc)) : std::nullopt;
}

void MainWindow::notifyDetectDevice(const QString& ipAddress)
{
    // One that was handed over stays as it is: it may have a password, which discovery never has.
    if (deviceByAddress(*m_doc, ipAddress)) {
        return;
    }
    const DetectedDevice found = m_detector->deviceInfo(ipAddress);
    addDevice(*m_doc, {.label = found.deviceName,
                       .modelName = found.modelName,
                       .version = found.version,
                       .ipAddress = found.ipAddress,
                       .macAddress = found.macAddress,
                       .searchType = found.searchType,
                       .password = found.password});
}

void MainWindow::openGuide()
{
    BasePage* page = pageAt(m_currentIndex);
    const QString trouble = Guide(QCoreApplication::applicationDirPath()).open(page->pageNumber());
    if (!trouble.isEmpty()) {
        page->tell(trouble);
    }
}

void MainWindow::customEvent(QEvent* event)
{
    if (event->type() == ShowNetworkDialogEvent::eventType) {
        chooseInterface();
    } else if (event->type() == StartDiscoveryEvent::eventType) {
        startDiscovery();
    }
}

void MainWindow::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_resumeTimerId) {
        return;
    }
    killTimer(m_resumeTimerId);
    m_resumeTimerId = 0;
    loadWork();
    m_resumeDialog->hide();
    setEnabled(true);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!isAnythingToSave()) {
        event->accept();
        return;
    }
    const QMessageBox::StandardButton answer = QMessageBox::question(
        this, QStringLiteral("Save Information?"),
        QStringLiteral("Would you like to save the information gathered so far and continue the "
                       "configuration at the next startup?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    if (answer == QMessageBox::Cancel) {
        event->ignore();
        return;
    }
    // Work in a file of the user's own may be all that there is of a hall: it stays at hand.
    const bool isSaved = answer != QMessageBox::Yes || saveWork();
    event->setAccepted(isSaved || m_file == nullptr);
}

/// From the installation step on nothing while the hubs hold what the document holds, and so does
/// the user's own file, if there is one. The pages before it may show what has not come as far as
/// the document.
bool MainWindow::isAnythingToSave() const
{
    if (m_currentIndex < installIndex) {
        return m_currentIndex > 0;
    }
    const EnteredWork work = enteredWork(*m_doc);
    return (m_currentIndex == installIndex && m_installedWork != work) ||
           (m_file != nullptr && m_fileWork != work);
}

BasePage* MainWindow::appendPage(int index)
{
    BasePage* page = makePage(index, this, m_doc, this);
    m_pageStack->addWidget(page);
    return page;
}

BasePage* MainWindow::pageAt(int index) const
{
    return qobject_cast<BasePage*>(m_pageStack->widget(index));
}

void MainWindow::enterCurrentPage(const BasePage* previous)
{
    // Pages fill their tables here, before they are shown: a visible table is far slower to fill.
    pageAt(m_currentIndex)->enterFrom(previous->pageNumber());
    showCurrentPage();
}

void MainWindow::showCurrentPage()
{
    // The title first: what the page itself says when it comes to sight is read out after it.
    m_titleLabel->say(pageAt(m_currentIndex)->title());
    m_pageStack->setCurrentIndex(m_currentIndex);
}

void MainWindow::chooseInterface()
{
    NetworkDialog dialog(this);
    dialog.fill(nicIndex(*m_doc));
    if (dialog.exec() != QDialog::Accepted) {
        quit();
        return;
    }
    setNicIndex(*m_doc, dialog.selectedIndex());
    startDiscovery();
}

void MainWindow::startDiscovery()
{
    if (!m_detector) {
        m_detector = new DeviceDetector(this, nicIndex(*m_doc));
        connect(m_detector, SIGNAL(deviceDetected(QString)), this,
                SLOT(notifyDetectDevice(QString)));
    }
    m_detector->detect();
    if (m_resumeTimerId == 0 && findWork()) {
        waitForSavedDevices();
    }
}

void MainWindow::waitForSavedDevices()
{
    m_resumeTimerId = startTimer(resumeDelayMs, Qt::CoarseTimer);
    if (!m_resumeDialog) {
        m_resumeDialog = new ResumeDialog(this);
    }
    m_resumeDialog->show();
    setEnabled(false);
    // The window disables its dialogs as well, and this one is there to be read.
    m_resumeDialog->setEnabled(true);
}

/// Whether there is work to be loaded. A file that cannot be opened is told of, and is not tried
/// again.
bool MainWindow::findWork()
{
    if (m_file == nullptr) {
        return QFile::exists(resumePath());
    }
    if (std::exchange(m_isFileRead, true)) {
        return false;
    }
    const bool canBeLoaded = m_file->read();
    if (!canBeLoaded) {
        tellUnreadableFile();
    }
    return canBeLoaded;
}

void MainWindow::loadWork()
{
    if (m_file != nullptr) {
        loadFile();
    } else {
        loadResumeFile();
    }
}

/// Where devices are missing, the user begins with them: often one was exchanged.
void MainWindow::loadFile()
{
    if (m_file->load()) {
        m_fileWork = enteredWork(*m_doc);
    } else {
        setPageIndex(*m_doc, int(WizardPage::DeviceLocation));
    }
    showLoadedWork();
}

void MainWindow::tellUnreadableFile()
{
    QString text = tr("%1 cannot be opened: %2.")
                       .arg(QDir::toNativeSeparators(m_file->path()), m_file->fault());
    if (QFile::exists(m_file->path())) {
        text += tr("\n\nIt stays as it is: what you save goes into a new file beside it.");
    }
    QMessageBox::critical(this, QStringLiteral("Error"), text, QMessageBox::Ok);
    setPageIndex(*m_doc, int(WizardPage::RoomDesign));
    restorePages();
}

void MainWindow::loadResumeFile()
{
    if (!QFile::exists(resumePath())) {
        return;
    }
    if (!m_doc->loadResume(resumePath())) {
        offerToRemoveResumeFile();
        return;
    }
    showLoadedWork();
    QFile::remove(resumePath());
}

void MainWindow::showLoadedWork()
{
    restorePages();
    const QSize size = windowSize(*m_doc);
    if (size.isValid()) {
        m_place->restore(size);
    }
}

void MainWindow::restorePages()
{
    m_currentIndex = pageIndex(*m_doc);
    for (int index = 0; index < m_pageStack->count(); ++index) {
        pageAt(index)->restoreFromDocument();
    }
    for (int index = m_pageStack->count(); index <= m_currentIndex; ++index) {
        appendPage(index)->restoreFromDocument();
    }
    showCurrentPage();
}

void MainWindow::offerToRemoveResumeFile()
{
    const QMessageBox::StandardButton answer = QMessageBox::critical(
        this, QStringLiteral("Error"),
        tr("We could not resume the configuration. Do you want to remove the information?"),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer == QMessageBox::Yes) {
        QFile::remove(resumePath());
    }
}

bool MainWindow::saveWork()
{
    if (m_file == nullptr && !QDir().mkpath(resumeFolder())) {
        return false;
    }
    // Nobody goes on with work at its end: a hall that was installed opens where it can be again.
    setPageIndex(*m_doc, std::min(m_currentIndex, installIndex));
    setWindowSize(*m_doc, size());
    pageAt(m_currentIndex)->storeToDocument();
    const bool isSaved = m_file != nullptr ? saveFile() : m_doc->saveResume(resumePath());
    if (!isSaved) {
        QMessageBox::critical(this, QStringLiteral("Error"), tr("Information could not be saved."),
                              QMessageBox::Ok);
    }
    return isSaved;
}

/// A file that may hold more than the document is left alone.
bool MainWindow::saveFile() const
{
    const QString path = m_file->path();
    if (!m_file->holdsMore()) {
        return m_doc->saveResume(path);
    }
    QDir().mkpath(QFileInfo(path).path());
    return !saveAsNewFile(*m_doc, path).isEmpty();
}
