#include "wizarduser.h"

#include "basepage.h"
#include "devicequeries.h"
#include "gridgeometry.h"
#include "mainwindow.h"
#include "modalanswer.h"
#include "pagefixtures.h"
#include "sessionqueries.h"
#include "tablefixtures.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

namespace {

constexpr GridGeometry grid{2, 48};
constexpr int removeColumn = 5;
constexpr int positionColumn = 5;

struct HandedOver
{
    const char* label;
    const char* model;
};

constexpr HandedOver devices[] = {{"Hub-A", "PX-HB"}, {"Hub-B", "PX-HB"},   {"Left", "LQA4-08S"},
                                  {"Right", "DSK4M"}, {"Ceiling", "PX-DL"}, {"Table", "PX-BK"}};

QPoint middle(QPoint cell)
{
    return grid.cellRect(cell).center();
}

void moveTo(QWidget* editor, QPoint position)
{
    QMouseEvent event(QEvent::MouseMove, position, editor->mapToGlobal(position), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(editor, &event);
}

/// Chooses as the keyboard does: Home, then down.
void choose(QComboBox* box, int index)
{
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < index; ++i) {
        QTest::keyClick(box, Qt::Key_Down);
    }
}

} // namespace

WizardUser::WizardUser()
{
    setNicIndex(doc, 7); // no dialog at the start
    for (const HandedOver& device : devices) {
        const QString label = QLatin1String(device.label);
        addTestDevice(doc, label, QLatin1String(device.model), address(label));
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

void WizardUser::open()
{
    window = std::make_unique<MainWindow>(nullptr, &doc);
    window->show();
}

void WizardUser::closeAndSave()
{
    const ModalAnswer yes(QStringLiteral("Yes"));
    QVERIFY(window->close());
    QVERIFY(yes.wasShown());
}

int WizardUser::pageNumber() const
{
    return stack()->currentIndex() + 1;
}

QWidget* WizardUser::page(int number) const
{
    return stack()->widget(number - 1);
}

QWidget* WizardUser::button(const char* name) const
{
    return buttonOf(*stack()->currentWidget(), name);
}

void WizardUser::press(const char* name) const
{
    QVERIFY2(button(name)->isEnabled(), name);
    QTest::mouseClick(button(name), Qt::LeftButton);
    // The widgets of rows that a page has replaced go with the event loop's next turn.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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
    auto* editor = page(2)->findChild<QWidget*>(QStringLiteral("roomEditor"));
    QTest::mousePress(editor, Qt::LeftButton, {}, middle(stroke.first()));
    moveTo(editor, middle(stroke.first()) + QPoint(1, 1));
    for (const QPoint cell : stroke.mid(1)) {
        moveTo(editor, middle(cell));
    }
    QTest::mouseRelease(editor, Qt::LeftButton, {}, middle(stroke.last()) + QPoint(2, 2));
}

void WizardUser::click(QPoint cell) const
{
    auto* editor = page(2)->findChild<QWidget*>(QStringLiteral("roomEditor"));
    QTest::mouseClick(editor, Qt::LeftButton, {}, middle(cell));
}

void WizardUser::place(const QString& label, int room) const
{
    choose(page(3)->findChild<QComboBox*>(QStringLiteral("roomCombo_") + address(label)), room);
}

QString WizardUser::shownRoom(const QString& label) const
{
    return page(3)
        ->findChild<QComboBox*>(QStringLiteral("roomCombo_") + address(label))
        ->currentText();
}

void WizardUser::link(int one, int other) const
{
    const QString name = QStringLiteral("Link room %1 and room %2").arg(one).arg(other);
    for (QWidget* box : page(4)->findChildren<QWidget*>()) {
        if (box->accessibleName() == name) {
            QTest::mouseClick(box, Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable(name));
}

void WizardUser::removeLayout(int number) const
{
    QTreeWidget* list = tableOf(*page(4), "layoutList");
    QTest::mouseClick(
        buttonOf(*list->itemWidget(list->topLevelItem(number - 1), 1), "removeButton"),
        Qt::LeftButton);
}

void WizardUser::toggleInSet(int group, const QString& label) const
{
    selectGroup(*page(5), group - 1);
    for (const char* name : {"hubTable", "peripheralTable"}) {
        QTreeWidget* table = tableOf(*shownPanel(*page(5)), name);
        if (QTreeWidgetItem* row = rowWith(*table, 0, label)) {
            QTest::mouseClick(table->itemWidget(row, removeColumn), Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable(label));
}

void WizardUser::chooseSide(int group, const QString& label, const QString& side) const
{
    selectGroup(*page(6), group - 1);
    QTreeWidget* table = tableOf(*shownPanel(*page(6)), "speakerTable");
    auto* box =
        qobject_cast<QComboBox*>(table->itemWidget(rowWith(*table, 0, label), positionColumn));
    choose(box, box->findText(side));
}

void WizardUser::namePreset(int group, const QString& name) const
{
    auto* field = page(7)->findChildren<QLineEdit*>().at(group - 1);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, name);
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

QStackedWidget* WizardUser::stack() const
{
    return window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
}
