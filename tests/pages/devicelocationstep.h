#pragma once

#include "devicetable.h"
#include "fakecontroller.h"
#include "pagedevicelocation.h"
#include "pagefixtures.h"
#include "roomeditor.h"
#include "svgbutton.h"
#include "tesseldoc.h"

#include <QComboBox>
#include <QPushButton>

/// The columns of both device tables.
enum Column
{
    LabelColumn,
    IdentifyColumn,
    ModelColumn,
    AddressColumn,
    RoomColumn
};

inline const QString hubModel = QStringLiteral("PX-HB");
inline const QString microphoneModel = QStringLiteral("PX-DL");
inline const QString speakerModel = QStringLiteral("LQA4-08S");
inline const QString controllerModel = QStringLiteral("PNB-QE7");

/// A document that notes which devices were asked to show themselves instead of asking them, and
/// may stand for one that was handed over an interface.
class QuietDoc : public TesselDoc
{
public:
    QuietDoc();
    bool doAction(int kind, const QVariantMap& data) override;
    bool getData(int kind, QVariantMap& data) override;

    bool isNicHandedOver = false;
    QList<std::pair<int, QVariantMap>> actions;
};

/// The page that places devices in rooms, with a document of its own, and the hands and eyes of
/// its user.
struct DeviceLocationStep
{
    explicit DeviceLocationStep(int rooms = 2);

    /// Shows the page as the wizard does, in its smallest window.
    void enter(int from = 2);

    /// Adds `count` devices of a model, in `room`, named dev-001, dev-002, ...
    void add(const QString& model, int count = 1, int room = 1);
    /// The address of the first, second, ... device added.
    static QString address(int device);
    /// The room that the document has for a device.
    int storedRoom(const QString& ip);

    QComboBox* combo(const QString& ip) const;
    /// The combos of all rows with this address.
    QList<QComboBox*> combos(const QString& ip) const;
    SvgButton* pencil(DeviceTable* table, const QString& ip) const;

    /// Chooses a room as the keyboard does it: Home, then down to it.
    void choose(const QString& ip, int room) const;
    static void choose(QComboBox* combo, int room);
    /// Double-clicks a cell where a user would: on whatever widget lies over its middle.
    void doubleClick(DeviceTable* table, const QString& ip, int column) const;

    /// The summary's texts for a room, and the columns that it shows in red.
    QStringList summaryRow(int room) const;
    QList<int> redColumns(int room) const;

    QuietDoc doc;
    FakeController controller;
    PageDeviceLocation page{&controller, &doc, nullptr};
    DeviceTable* hubs = page.findChild<DeviceTable*>(QStringLiteral("hubTable"));
    DeviceTable* peripherals = page.findChild<DeviceTable*>(QStringLiteral("peripheralTable"));
    QTreeWidget* summary = page.findChild<QTreeWidget*>(QStringLiteral("summaryTable"));
    RoomEditor* picture = page.findChild<RoomEditor*>(QStringLiteral("roomPicture"));
    QPushButton* next = buttonOf(page, "nextButton");
    int devices = 0;
};

inline const QString firstAddress = DeviceLocationStep::address(1);
