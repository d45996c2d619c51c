#include "filledwizard.h"

#include "documentfixtures.h"
#include "mainwindow.h"
#include "presetqueries.h"
#include "sessionqueries.h"

#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTest>

namespace {

constexpr int roomCount = 4;
constexpr int devicesPerRoom = 6;

TestHall hall()
{
    TestHall hall{.rooms = roomCount,
                  .layouts = {QStringLiteral("1/2/3/4"), QStringLiteral("1+2/3/4"),
                              QStringLiteral("1/2/3+4"), QStringLiteral("1+2/3+4"),
                              QStringLiteral("1+2+3+4")}};
    const QStringList models{QStringLiteral("PX-HB"),    QStringLiteral("PX-DL8"),
                             QStringLiteral("LQA4-08S"), QStringLiteral("DSK4M"),
                             QStringLiteral("PNB-QE7"),  QStringLiteral("PX-BK")};
    for (int room = 1; room <= roomCount; ++room) {
        for (const QString& model : models) {
            const qsizetype number = hall.devices.size() + 1;
            const QString label = QStringLiteral("%1-room-%2").arg(model).arg(room);
            hall.devices.append(
                {.label = number % devicesPerRoom == 3 ? label.leftJustified(64, u'w') : label,
                 .model = model,
                 .address = QStringLiteral("192.168.100.%1").arg(100 + number),
                 .room = room});
        }
    }
    return hall;
}

} // namespace

FilledWizard::FilledWizard(int page)
{
    setNicIndex(doc, 7); // handed over, so that nothing is looked for
    enterHall(doc, hall());
    addPreset(doc, 1, 1, QString(255, u'w'));
    window = std::make_unique<MainWindow>(nullptr, &doc);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    while (stack()->currentIndex() < page - 1) {
        window->next();
    }
    QCoreApplication::processEvents();
}

FilledWizard::~FilledWizard() = default;

QStackedWidget* FilledWizard::stack() const
{
    return window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
}

QWidget& FilledWizard::page() const
{
    return *stack()->currentWidget();
}

QAbstractScrollArea* FilledWizard::area() const
{
    return page().findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
}

QList<QPushButton*> FilledWizard::buttons() const
{
    return page().findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
}
