#include "wizardhands.h"

#include "finding.h"
#include "hands.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>

namespace {

// The room grid of step 2: 2 pixels between cells of 48.
constexpr int cellPitch = 50;
constexpr QPoint cellMiddle(26, 26);

QPoint middleOf(QPoint cell)
{
    return cell * cellPitch + cellMiddle;
}

} // namespace

WizardHands::WizardHands(QWidget* window)
    : m_window(window)
{
}

QWidget* WizardHands::page() const
{
    return shownPage(*m_window);
}

int WizardHands::pageNumber() const
{
    return m_window->findChild<QStackedWidget*>(QStringLiteral("pageStack"))->currentIndex() + 1;
}

QPushButton* WizardHands::button(QAnyStringView name) const
{
    return buttonOf(*page(), name);
}

QTreeWidget* WizardHands::table(QAnyStringView name) const
{
    return tableOf(*page(), name);
}

QTreeWidgetItem* WizardHands::device(const QString& addressOrLabel) const
{
    for (const char* name : {"hubTable", "peripheralTable", "speakerTable"}) {
        for (const auto* table : page()->findChildren<QTreeWidget*>(QLatin1String(name))) {
            for (const char* header : {"IP Address", "Hostname"}) {
                auto* row = table->isVisible() ? rowWith(*table, header, addressOrLabel) : nullptr;
                if (row != nullptr) {
                    return row;
                }
            }
        }
    }
    return nullptr;
}

bool WizardHands::press(QAnyStringView name) const
{
    QPushButton* found = button(name);
    if (!found->isEnabled()) {
        return false;
    }
    Hands::click(found);
    QCoreApplication::processEvents();
    return true;
}

void WizardHands::draw(const QList<QPoint>& cells) const
{
    QList<QPoint> path;
    for (const QPoint cell : cells) {
        path.append(middleOf(cell));
    }
    Hands::drag(widgetOf(*page(), "roomEditor"), path);
}

void WizardHands::clickCell(QPoint cell) const
{
    Hands::click(widgetOf(*page(), "roomEditor"), middleOf(cell));
}

void WizardHands::place(QTreeWidgetItem* device, int room) const
{
    Hands::reach(device);
    Hands::choose(widgetIn(device, "Room"), QString::number(room));
}

void WizardHands::link(int room, int other) const
{
    const QString name = QStringLiteral("Link room %1 and room %2").arg(room).arg(other);
    QWidget* box = namedWidget(*page(), name);
    if (box == nullptr) {
        qFatal("There is no \"%s\"", qPrintable(name));
    }
    Hands::click(box);
}

void WizardHands::removeLayout(int number) const
{
    QTreeWidgetItem* row = rowWith(*table("layoutList"), "No.", QString::number(number));
    Hands::reach(row);
    Hands::click(buttonOf(*widgetIn(row, "Layout"), "removeButton"));
}

void WizardHands::showGroup(int number) const
{
    Hands::clickRow(group(number));
    QCoreApplication::processEvents();
}

void WizardHands::toggle(QTreeWidgetItem* device) const
{
    Hands::reach(device);
    QWidget* remove = namedWidgetIn(device, "Remove");
    Hands::click(remove != nullptr ? remove : namedWidgetIn(device, "Revert"));
}

void WizardHands::chooseSide(QTreeWidgetItem* speaker, const QString& side) const
{
    Hands::reach(speaker);
    Hands::choose(widgetIn(speaker, "Position"), side);
}

QString WizardHands::namePreset(int number, const QString& name) const
{
    QTreeWidgetItem* row = group(number);
    Hands::reach(row);
    auto* field = qobject_cast<QLineEdit*>(widgetIn(row, "Preset Names"));
    Hands::typeInto(field, name);
    return field->text();
}

QString WizardHands::statuses() const
{
    return columnTexts(*table("hubList"), "Status").join(u' ');
}

QTreeWidgetItem* WizardHands::group(int number) const
{
    return table("roomGroupList")->topLevelItem(number - 1);
}
