#include "wizarduser.h"

#include "dialoganswerer.h"
#include "finding.h"
#include "mainwindow.h"
#include "pagefixtures.h"
#include "sessionqueries.h"

#include <QComboBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

namespace {

struct HandedOver
{
    const char* label;
    const char* model;
};

constexpr HandedOver devices[] = {{"Hub-A", "PX-HB"}, {"Hub-B", "PX-HB"},   {"Left", "LQA4-08S"},
                                  {"Right", "DSK4M"}, {"Ceiling", "PX-DL"}, {"Table", "PX-BK"}};

} // namespace

WizardUser::WizardUser(const QStringList& without)
{
    setNicIndex(doc, 7); // no dialog at the start
    for (const HandedOver& device : devices) {
        const QString label = QLatin1String(device.label);
        if (!without.contains(label)) {
            addTestDevice(doc, label, QLatin1String(device.model), address(label));
        }
    }
}

WizardUser::~WizardUser() = default;

QString WizardUser::address(const QString& label)
{
    int number = 1;
    for (const HandedOver& device : devices) {
        if (label == QLatin1String(device.label)) {
            return QStringLiteral("127.61.0.%1").arg(number);
        }
        ++number;
    }
    return {};
}

void WizardUser::open(ConfigurationFile* file)
{
    window = std::make_unique<MainWindow>(nullptr, &doc, file);
    window->show();
}

void WizardUser::closeAndSave()
{
    const DialogAnswerer yes("Save Information?", pressing("Yes"));
    QVERIFY(window->close());
}

int WizardUser::pageNumber() const
{
    return hands().pageNumber();
}

QWidget* WizardUser::page(int number) const
{
    return window->findChild<QStackedWidget*>(QStringLiteral("pageStack"))->widget(number - 1);
}

QWidget* WizardUser::button(const char* name) const
{
    return hands().button(name);
}

void WizardUser::press(const char* name) const
{
    QVERIFY2(hands().press(name), name);
}

void WizardUser::next(int pages) const
{
    for (int i = 0; i < pages; ++i) {
        press("nextButton");
    }
}

void WizardUser::back(int pages) const
{
    for (int i = 0; i < pages; ++i) {
        press("backButton");
    }
}

void WizardUser::draw(const Cells& stroke) const
{
    hands().draw(stroke);
}

void WizardUser::click(QPoint cell) const
{
    hands().clickCell(cell);
}

void WizardUser::place(const QString& label, int room) const
{
    hands().place(row(label), room);
}

QString WizardUser::shownRoom(const QString& label) const
{
    return qobject_cast<QComboBox*>(widgetIn(row(label), "Room"))->currentText();
}

void WizardUser::link(int one, int other) const
{
    hands().link(one, other);
}

void WizardUser::removeLayout(int number) const
{
    hands().removeLayout(number);
}

void WizardUser::toggleInSet(int group, const QString& label) const
{
    hands().showGroup(group);
    hands().toggle(row(label));
}

void WizardUser::chooseSide(int group, const QString& label, const QString& side) const
{
    hands().showGroup(group);
    hands().chooseSide(row(label), side);
}

void WizardUser::namePreset(int group, const QString& name) const
{
    QCOMPARE(hands().namePreset(group, name), name);
}

void WizardUser::workThrough(int number) const
{
    next();
    for (int step = 2; step < number; ++step) {
        work(step);
        next();
    }
    work(number);
}

void WizardUser::work(int number) const
{
    switch (number) {
    case 2:
        draw({{0, 0}, {0, 1}});
        draw({{1, 0}, {1, 1}});
        draw({{2, 0}, {2, 1}, {2, 2}});
        break;
    case 3:
        place(QStringLiteral("Hub-A"), 1);
        place(QStringLiteral("Left"), 1);
        place(QStringLiteral("Hub-B"), 2);
        place(QStringLiteral("Right"), 2);
        place(QStringLiteral("Ceiling"), 3);
        break;
    case 4:
        addLayout(); // 1, 2, 3: the groups 1 to 3
        link(1, 2);
        addLayout(); // 1+2, 3: the groups 4 and 5
        break;
    case 5:
        toggleInSet(4, QStringLiteral("Hub-B"));
        break;
    case 6:
        chooseSide(2, QStringLiteral("Right"), QStringLiteral("R"));
        chooseSide(4, QStringLiteral("Right"), QStringLiteral("R"));
        break;
    case 7:
        namePreset(1, QStringLiteral("Small A"));
        namePreset(4, QStringLiteral("Hall 50%2"));
        break;
    default:
        break;
    }
}

QTreeWidgetItem* WizardUser::row(const QString& label) const
{
    QTreeWidgetItem* found = hands().device(label);
    if (found == nullptr) {
        qFatal("%s is not listed", qPrintable(label));
    }
    return found;
}

WizardHands WizardUser::hands() const
{
    return WizardHands(window.get());
}
