#include "pagefixtures.h"

#include "devicequeries.h"
#include "layoutqueries.h"
#include "roomqueries.h"

#include <QPushButton>
#include <QTest>

namespace {

constexpr int rowsOfGrid = 8;
constexpr int columnsPerRoom = 2;

} // namespace

void drawRooms(IDocAccessor& doc, int count)
{
    for (int room = 1; room <= count; ++room) {
        QList<QPoint> cells;
        for (int x = (room - 1) * columnsPerRoom; x < room * columnsPerRoom; ++x) {
            for (int y = 0; y < rowsOfGrid; ++y) {
                cells.append({x, y});
            }
        }
        setRoomCells(doc, room, cells);
    }
}

void addTestDevice(IDocAccessor& doc, const QString& label, const QString& model,
                   const QString& ipAddress, int room)
{
    FoundDevice device;
    device.label = label;
    device.modelName = model;
    device.version = QStringLiteral("2.1.0");
    device.ipAddress = ipAddress;
    device.macAddress = QStringLiteral("02:00:00:00:00:01");
    QVERIFY2(addDevice(doc, device), qPrintable(ipAddress));
    if (room != 0) {
        QVERIFY(setDeviceRoom(doc, ipAddress, room));
    }
}

void addTestLayout(IDocAccessor& doc, int number, const QString& roomGroup)
{
    QPixmap picture(64, 64);
    picture.fill(Qt::darkGray);
    QVERIFY(addLayout(doc, {number, roomGroup, picture}));
}

QStringList strings(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QLatin1String(text));
    }
    return list;
}

QPushButton* buttonOf(const QWidget& parent, const char* name)
{
    auto* button = parent.findChild<QPushButton*>(QLatin1String(name));
    Q_ASSERT_X(button != nullptr, "buttonOf", name);
    return button;
}

void press(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

QStringList tabOrder(const QWidget& root)
{
    QStringList names;
    for (auto* widget = root.nextInFocusChain(); widget != &root;
         widget = widget->nextInFocusChain()) {
        if (root.isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->objectName().isEmpty()) {
            names.append(widget->objectName());
        }
    }
    return names;
}
