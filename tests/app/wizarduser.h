#pragma once

#include "tesseldoc.h"
#include "wizardhands.h"

#include <QList>
#include <QPoint>
#include <QStringList>

#include <memory>

class ConfigurationFile;
class MainWindow;
class QTreeWidgetItem;
class QWidget;

using Cells = QList<QPoint>;

/// An installer in front of the whole wizard: the real window over the real document, used through
/// its widgets. Two hubs, two speakers and two microphones are handed over, none of them placed.
class WizardUser
{
public:
    WizardUser()
        : WizardUser(QStringList())
    {
    }
    /// The same where the devices of these labels are not there.
    explicit WizardUser(const QStringList& without);
    ~WizardUser();

    /// The address of a device.
    static QString address(const QString& label);

    /// Starts the wizard, which loads saved work, or that of a file.
    void open(ConfigurationFile* file = nullptr);
    /// Closes the window and answers the question with "Yes".
    void closeAndSave();

    int pageNumber() const;
    QWidget* page(int number) const;
    QWidget* button(const char* name) const;
    /// Presses a button of the page shown, which must be enabled.
    void press(const char* name) const;
    void next(int pages = 1) const;
    void back(int pages = 1) const;

    // On the page of step 2
    void draw(const Cells& stroke) const;
    void click(QPoint cell) const;

    // Step 3
    void place(const QString& label, int room) const;
    QString shownRoom(const QString& label) const;

    // Step 4
    void link(int one, int other) const;
    void addLayout() const { press("addLayoutButton"); }
    void removeLayout(int number) const;

    // Steps 5 to 7; groups are counted from 1 as the lists show them
    void toggleInSet(int group, const QString& label) const;
    void chooseSide(int group, const QString& label, const QString& side) const;
    void namePreset(int group, const QString& name) const;

    /// Everything that the page of this number shows of what was entered, one text per fact.
    QStringList shown(int number) const;
    /// The same for all pages up to this one.
    QList<QStringList> shownUpTo(int number) const;

    /// Does the work of each step up to the page of this number, which is then filled but not
    /// left.
    void workThrough(int number) const;

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;

private:
    WizardHands hands() const;
    /// The row of a device on the page shown, which must list it.
    QTreeWidgetItem* row(const QString& label) const;
    void work(int number) const;
};
