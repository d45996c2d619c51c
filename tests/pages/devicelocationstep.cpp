#include "devicelocationstep.h"

#include "devicequeries.h"

#include <QTest>

QuietDoc::QuietDoc()
    : TesselDoc(nullptr)
{
}

bool QuietDoc::doAction(int kind, const QVariantMap& data)
{
    actions.append({kind, data});
    return true;
}

bool QuietDoc::getData(int kind, QVariantMap& data)
{
    const QString key = QStringLiteral("DataType:IsNicHandedOver=bool");
    const bool isAsked = data.contains(key);
    const bool isKnown = TesselDoc::getData(kind, data);
    if (isAsked) {
        data.insert(key, isNicHandedOver);
    }
    return isKnown;
}

DeviceLocationStep::DeviceLocationStep(int rooms)
{
    drawRooms(doc, rooms);
}

void DeviceLocationStep::enter(int from)
{
    page.enterFrom(from);
    // The widgets of earlier rows go with the event loop's next turn.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    page.resize(780, 540);
    page.show();
}

void DeviceLocationStep::add(const QString& model, int count, int room)
{
    for (int i = 0; i < count; ++i) {
        ++devices;
        addTestDevice(doc, QStringLiteral("dev-%1").arg(devices, 3, 10, QLatin1Char('0')), model,
                      address(devices), room);
    }
}

QString DeviceLocationStep::address(int device)
{
    return QStringLiteral("10.0.0.%1").arg(device);
}

QComboBox* DeviceLocationStep::combo(const QString& ip) const
{
    return page.findChild<QComboBox*>(QStringLiteral("roomCombo_") + ip);
}

QList<QComboBox*> DeviceLocationStep::combos(const QString& ip) const
{
    return page.findChildren<QComboBox*>(QStringLiteral("roomCombo_") + ip);
}

void DeviceLocationStep::choose(const QString& ip, int room) const
{
    choose(combo(ip), room);
}

void DeviceLocationStep::choose(QComboBox* combo, int room)
{
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Home);
    for (int i = 0; i < room; ++i) {
        QTest::keyClick(combo, Qt::Key_Down);
    }
}

void DeviceLocationStep::doubleClick(DeviceTable* table, const QString& ip, int column) const
{
    const QTreeWidgetItem* row = table->rowOf(ip);
    const QPoint position(table->columnViewportPosition(column) + table->columnWidth(column) / 2,
                          table->visualItemRect(row).center().y());
    QWidget* target = table->viewport()->childAt(position);
    if (!target) {
        target = table->viewport();
    }
    const QPoint inTarget = target->mapFrom(table->viewport(), position);
    QTest::mouseClick(target, Qt::LeftButton, {}, inTarget);
    QTest::mouseDClick(target, Qt::LeftButton, {}, inTarget);
}

SvgButton* DeviceLocationStep::pencil(DeviceTable* table, const QString& ip) const
{
    return table->itemWidget(table->rowOf(ip), LabelColumn)->findChild<SvgButton*>();
}

QStringList DeviceLocationStep::summaryRow(int room) const
{
    QStringList texts;
    for (int column = 0; column < 5; ++column) {
        texts.append(summary->topLevelItem(room - 1)->text(column));
    }
    return texts;
}

QList<int> DeviceLocationStep::redColumns(int room) const
{
    QList<int> columns;
    for (int column = 0; column < summary->columnCount(); ++column) {
        const QBrush brush = summary->topLevelItem(room - 1)->foreground(column);
        if (brush.color() == QColor(Qt::red)) {
            columns.append(column);
        }
    }
    return columns;
}

int DeviceLocationStep::storedRoom(const QString& ip)
{
    return deviceByAddress(doc, ip)->roomNumber;
}
