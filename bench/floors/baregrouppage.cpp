#include "baregrouppage.h"

#include "datakey.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPixmapCache>
#include <QPushButton>
#include <QStackedWidget>
#include <QSvgRenderer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QVariantMap>

#include <array>

namespace {

constexpr int iconSide = 20;
constexpr int rowHeight = 26;
constexpr int identifyColumn = 1;
constexpr int lastWidgetColumn = 5;

struct Counts
{
    int hubs = 0;
    int microphones = 0;
    int speakers = 0;
    int controllers = 0;

    bool isSupported() const
    {
        return hubs < 2 && microphones + speakers <= 16 && controllers <= 8;
    }
};

Counts count(const QList<DeviceData>& devices)
{
    Counts counts;
    for (const DeviceData& device : devices) {
        const QString& model = device.modelName;
        if (model.startsWith(u"PX-HB")) {
            ++counts.hubs;
        } else if (model.startsWith(u"PX-DL") || model.startsWith(u"PX-BK") ||
                   model.startsWith(u"PX-NDE")) {
            ++counts.microphones;
        } else if (model == u"LQA4-08S" || model == u"DSK4M") {
            ++counts.speakers;
        } else if (model == u"PNB-QE7") {
            ++counts.controllers;
        }
    }
    return counts;
}

QList<DeviceData> devicesInRoom(const HallRecords& hall, int room)
{
    QList<DeviceData> devices;
    for (const DeviceData& device : hall.devices) {
        if (device.roomNumber == room) {
            devices.append(device);
        }
    }
    return devices;
}

// What the step keeps of a record: nothing where the device is removed from the set.
QHash<QString, QString> positions(const HallRecords& hall, int set, int layout)
{
    QHash<QString, QString> positions;
    for (const DeviceSetInfo& record : hall.sets) {
        if (record.deviceSetNumber != set || record.sceneNumber != layout) {
            continue;
        }
        const QVariantMap data{{DataKey::deviceSetNumber(), set},
                               {DataKey::sceneNumber(), layout},
                               {DataKey::deviceIPAddress(), record.ipAddress},
                               {DataKey::deviceSetRemove(), record.remove},
                               {DataKey::speakerPosition(), record.speakerPosition}};
        if (!data.value(DataKey::deviceSetRemove()).toBool()) {
            positions.insert(data.value(DataKey::deviceIPAddress()).toString(),
                             data.value(DataKey::speakerPosition()).toString());
        }
    }
    return positions;
}

QTreeWidget* makeTree(const QStringList& headers, const QList<int>& widths, QWidget* parent)
{
    auto* tree = new QTreeWidget(parent);
    tree->setHeaderLabels(headers);
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
    for (int column = 0; column < widths.size(); ++column) {
        tree->setColumnWidth(column, widths.at(column));
    }
    return tree;
}

QTreeWidgetItem* makeGroupRow(int number, int layout, int room, bool supported)
{
    static constexpr std::array colors{0xB06800, 0x448447, 0x145C97, 0xA21E0E};
    auto* row = new QTreeWidgetItem(
        {QString::number(number), QString::number(layout), QString::number(room)});
    row->setBackground(2, QColor(QRgb(colors.at(size_t(room - 1)))));
    row->setForeground(2, QColor(Qt::white));
    for (const int column : {0, 1}) {
        row->setForeground(column, supported ? Qt::black : Qt::red);
    }
    return row;
}

QTreeWidget* makeSummary(const Counts& counts, QWidget* parent)
{
    QTreeWidget* tree =
        makeTree({QStringLiteral("PX-HB"), QStringLiteral("Microphone"), QStringLiteral("Speaker"),
                  QStringLiteral("Controller"), QString()},
                 {}, parent);
    auto* row = new QTreeWidgetItem(
        {QString::number(counts.hubs), QString::number(counts.microphones),
         QString::number(counts.speakers), QString::number(counts.controllers)});
    row->setSizeHint(0, {0, rowHeight});
    tree->addTopLevelItem(row);
    tree->setFixedHeight(tree->header()->sizeHint().height() + rowHeight + 2 * tree->frameWidth());
    return tree;
}

QPixmap identifyIcon()
{
    const QString path = QStringLiteral(":/image/icon_identify_bk.svg");
    QPixmap icon;
    if (!QPixmapCache::find(path, &icon)) {
        icon = QPixmap(iconSide, iconSide);
        icon.fill(Qt::transparent);
        QPainter painter(&icon);
        QSvgRenderer(path).render(&painter);
        QPixmapCache::insert(path, icon);
    }
    return icon;
}

} // namespace

BareGroupPage::BareGroupPage(Step step, const HallRecords& hall, QWidget* parent)
    : QWidget(parent)
    , m_step(step)
    , m_groups(makeTree({QStringLiteral("No."), QStringLiteral("Layout"), QStringLiteral("Room")},
                        {15, 40, 40}, this))
    , m_panels(new QStackedWidget(this))
{
    layOut();
    addGroups(hall);
    m_groups->setCurrentItem(m_groups->topLevelItem(0));
}

void BareGroupPage::layOut()
{
    auto* layout = new QVBoxLayout(this);
    for (const int length : {2, 3, 2}) {
        auto* label =
            new QLabel(QStringLiteral("Select the devices of a combined room. ").repeated(length));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    auto* row = new QHBoxLayout;
    layout->addLayout(row, 1);
    auto* column = new QVBoxLayout;
    row->addLayout(column, 1);
    column->addWidget(new QLabel(QStringLiteral("Select a room combination")));
    column->addWidget(m_groups, 1);
    row->addWidget(m_panels, 4);
    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    for (const char* text : {"Back", "Reset", "Next"}) {
        buttons->addWidget(new QPushButton(QLatin1String(text)));
    }
}

void BareGroupPage::addGroups(const HallRecords& hall)
{
    QList<QTreeWidgetItem*> rows;
    for (const SceneInfo& layout : hall.layouts) {
        for (const QString& room : layout.roomGroup.split(u'/')) {
            const int number = int(rows.size()) + 1;
            const QList<DeviceData> devices =
                devicesOfPanel(hall, number, layout.number, room.toInt());
            auto* panel = new QWidget(m_panels);
            if (rows.isEmpty()) {
                buildPanel(panel, layout, devices);
            }
            m_panels->addWidget(panel);
            rows.append(
                makeGroupRow(number, layout.number, room.toInt(), count(devices).isSupported()));
        }
    }
    m_groups->addTopLevelItems(rows);
}

// The devices that are not removed; of them the loudspeakers in step 6.
QList<DeviceData> BareGroupPage::devicesOfPanel(const HallRecords& hall, int set, int layout,
                                                int room) const
{
    const QHash<QString, QString> kept = positions(hall, set, layout);
    QList<DeviceData> devices;
    for (const DeviceData& device : devicesInRoom(hall, room)) {
        const bool isWanted = m_step == Step::DeviceSets || device.modelName == u"LQA4-08S" ||
                              device.modelName == u"DSK4M";
        if (isWanted && kept.contains(device.ipAddress)) {
            devices.append(device);
        }
    }
    return devices;
}

void BareGroupPage::buildPanel(QWidget* panel, const SceneInfo& layout,
                               const QList<DeviceData>& devices)
{
    auto* picture = new QLabel(panel);
    picture->setPixmap(layout.thumbnail);
    auto* top = new QHBoxLayout;
    top->addWidget(picture, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(top);
    if (m_step == Step::DeviceSets) {
        top->addWidget(makeSummary(count(devices), panel), 1, Qt::AlignTop);
        addDeviceTrees(panel, column, devices);
    } else {
        column->addWidget(new QLabel(QStringLiteral("Speaker Position"), panel));
        column->addWidget(makeDeviceTree(panel, devices), 1);
    }
}

void BareGroupPage::addDeviceTrees(QWidget* panel, QVBoxLayout* column,
                                   const QList<DeviceData>& devices)
{
    QList<DeviceData> hubs;
    QList<DeviceData> peripherals;
    for (const DeviceData& device : devices) {
        (device.modelName.startsWith(u"PX-HB") ? hubs : peripherals).append(device);
    }
    column->addWidget(new QLabel(QStringLiteral("PX-HB"), panel));
    column->addWidget(makeDeviceTree(panel, hubs), 1);
    column->addWidget(new QLabel(QStringLiteral("Peripheral"), panel));
    column->addWidget(makeDeviceTree(panel, peripherals), 3);
}

// All rows first and the widgets in them second, as it must be done.
QTreeWidget* BareGroupPage::makeDeviceTree(QWidget* panel, const QList<DeviceData>& devices)
{
    QTreeWidget* tree =
        makeTree({QStringLiteral("Hostname"), QString(), QStringLiteral("Model"),
                  QStringLiteral("IP Address"), QStringLiteral("Room"), QString(), QString()},
                 {200, 25, 70, 120, 50, 60, 20}, panel);
    QList<QTreeWidgetItem*> items;
    for (const DeviceData& device : devices) {
        items.append(new QTreeWidgetItem({device.label, QString(), device.modelName,
                                          device.ipAddress, QString::number(device.roomNumber)}));
        items.last()->setSizeHint(0, {0, rowHeight});
    }
    tree->addTopLevelItems(items);
    tree->sortItems(0, Qt::AscendingOrder);
    for (QTreeWidgetItem* item : items) {
        addRowWidgets(tree, item);
    }
    tree->setSortingEnabled(true);
    return tree;
}

void BareGroupPage::addRowWidgets(QTreeWidget* tree, QTreeWidgetItem* item)
{
    auto* identifyButton = new BareButton({});
    connect(identifyButton, SIGNAL(clicked()), this, SLOT(identify()));
    tree->setItemWidget(item, identifyColumn, identifyButton);
    if (m_step == Step::DeviceSets) {
        auto* removeButton = new BareButton(QStringLiteral("Remove"));
        connect(removeButton, SIGNAL(clicked()), this, SLOT(remove()));
        tree->setItemWidget(item, lastWidgetColumn, removeButton);
    } else {
        auto* combo = new QComboBox;
        combo->addItems({QStringLiteral("L"), QStringLiteral("R")});
        connect(combo, SIGNAL(currentTextChanged(QString)), this, SLOT(choosePosition()));
        tree->setItemWidget(item, lastWidgetColumn, combo);
    }
}

BareButton::BareButton(const QString& text)
    : m_text(text)
{
    setFocusPolicy(Qt::StrongFocus);
    if (text.isEmpty()) {
        setFixedSize(iconSide, iconSide);
    }
}

void BareButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::lightGray);
    if (m_text.isEmpty()) {
        painter.drawPixmap(0, 0, identifyIcon());
    } else {
        painter.setPen(Qt::darkGray);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setPen(Qt::black);
        painter.drawText(rect(), Qt::AlignCenter, m_text);
    }
}
