#pragma once

#include <QAnyStringView>
#include <QList>
#include <QPoint>
#include <QString>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// The hands of an installer on the wizard's window, step by step. Each operation is for the page
/// that it names and works on the page shown; a device is named by its address or its label, a
/// combined room by its number in the list, from 1.
class WizardHands
{
public:
    explicit WizardHands(QWidget* window);

    QWidget* window() const { return m_window; }
    /// The page that is shown, and its number, from 1.
    QWidget* page() const;
    int pageNumber() const;
    QPushButton* button(QAnyStringView name) const;
    QTreeWidget* table(QAnyStringView name) const;
    /// The row of a device in the table that lists it; null when none does.
    QTreeWidgetItem* device(const QString& addressOrLabel) const;

    /// Clicks a button of the page; false when it is disabled.
    bool press(QAnyStringView button) const;
    bool next() const { return press("nextButton"); }
    bool back() const { return press("backButton"); }

    /// Step 2: draws over these cells in one stroke, or clicks one; x = column, y = row, from 0.
    void draw(const QList<QPoint>& cells) const;
    void clickCell(QPoint cell) const;

    /// Step 3: chooses the room of a device.
    void place(QTreeWidgetItem* device, int room) const;

    /// Step 4: presses the link box between two rooms; removes a layout, by its number.
    void link(int room, int other) const;
    void removeLayout(int number) const;

    /// Steps 5 and 6: shows a combined room.
    void showGroup(int number) const;
    /// Step 5: takes a device out of the set shown, or back in.
    void toggle(QTreeWidgetItem* device) const;
    /// Step 6: chooses the side of a speaker.
    void chooseSide(QTreeWidgetItem* speaker, const QString& side) const;
    /// Step 7: names the preset of a combined room in place of what the field holds; returns what
    /// it then reads.
    QString namePreset(int group, const QString& name) const;

    /// Step 8: the statuses of the hubs from top to bottom, with blanks between them.
    QString statuses() const;

private:
    QTreeWidgetItem* group(int number) const;

    QWidget* m_window;
};
