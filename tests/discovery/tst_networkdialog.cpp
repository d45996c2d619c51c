#include "networkdialog.h"
#include "nicrows.h"
#include "testcase.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

class TestNetworkDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneEthernetAndOneWifiListOnlyTheEthernet();
    void interfacesThatAreNotOffered_data();
    void interfacesThatAreNotOffered();
    void theOrderOfTheSystemIsKept();
    void theFirstIpv4AddressAndItsMaskAreShown();
    void anEthernetWithOnlyAnIpv6AddressIsListedWithEmptyIpAndMask();
    void theSystemsInterfacesAreRead();
    void titleSizeAndHeadersAreAsTold();
    void anEmptyListLeavesOnlyCancel();
    void okIsEnabledExactlyWhileARowIsSelected();
    void aPreselectedIndexIsSelected();
    void aPreselectedIndexThatNoLongerExistsSelectsNothing();
    void fillingAgainReplacesTheRows();
    void cancelAndEscapeReject();
    void theKeyboardAloneChoosesAndAccepts();
    void theKeyboardChoosesTheOnlyRow();
    void keysBeginAmongTheRowsOnOffer_data();
    void keysBeginAmongTheRowsOnOffer();
    void returnPressesTheButtonThatHasTheFocus();
    void anEmptyListSaysWhyItIsEmpty();
    void nothingIsClippedAtTheLeastSize();
    void fillReadsTheComputersWiredInterfaces();
};

namespace {

NicInfo nic(const QString& name, int index, QNetworkInterface::InterfaceType type,
            const QStringList& addresses = {})
{
    NicInfo info{name, index, type, true, {}};
    for (const QString& address : addresses) {
        QNetworkAddressEntry entry;
        entry.setIp(QHostAddress(address));
        entry.setPrefixLength(24);
        info.addresses += entry;
    }
    return info;
}

QList<NicRow> twoRows()
{
    return {{QStringLiteral("Ethernet"), QStringLiteral("192.168.0.10"),
             QStringLiteral("255.255.255.0"), 4},
            {QStringLiteral("Ethernet 2"), QString(), QString(), 7}};
}

struct ShownDialog
{
    explicit ShownDialog(const QList<NicRow>& rows, int preselected = 0)
    {
        dialog.fill(rows, preselected);
        dialog.show();
    }

    bool waitUntilActive() { return QTest::qWaitForWindowActive(&dialog); }

    QPoint centre(int row) const { return list->visualItemRect(list->topLevelItem(row)).center(); }

    void click(int row) const
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centre(row));
    }

    NetworkDialog dialog{nullptr};
    QTreeWidget* list = dialog.findChild<QTreeWidget*>(QStringLiteral("nicList"));
    QPushButton* ok = dialog.findChild<QPushButton*>(QStringLiteral("okButton"));
    QPushButton* cancel = dialog.findChild<QPushButton*>(QStringLiteral("cancelButton"));
};

} // namespace

void TestNetworkDialog::oneEthernetAndOneWifiListOnlyTheEthernet()
{
    const auto rows = nicRows(
        {nic(QStringLiteral("Wi-Fi"), 3, QNetworkInterface::Wifi, {QStringLiteral("10.0.0.2")}),
         nic(QStringLiteral("Ethernet"), 4, QNetworkInterface::Ethernet,
             {QStringLiteral("10.0.1.2")})});
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().name, QStringLiteral("Ethernet"));
    QCOMPARE(rows.first().index, 4);
}

void TestNetworkDialog::interfacesThatAreNotOffered_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isValid");
    QTest::newRow("wireless") << int(QNetworkInterface::Wifi) << true;
    QTest::newRow("loopback") << int(QNetworkInterface::Loopback) << true;
    QTest::newRow("virtual") << int(QNetworkInterface::Virtual) << true;
    QTest::newRow("unknown") << int(QNetworkInterface::Unknown) << true;
    QTest::newRow("point to point") << int(QNetworkInterface::Ppp) << true;
    QTest::newRow("an invalid Ethernet") << int(QNetworkInterface::Ethernet) << false;
}

void TestNetworkDialog::interfacesThatAreNotOffered()
{
    QFETCH(const int, type);
    QFETCH(const bool, isValid);
    NicInfo info = nic(QStringLiteral("x"), 1, QNetworkInterface::InterfaceType(type),
                       {QStringLiteral("10.0.0.2")});
    info.isValid = isValid;
    QVERIFY(nicRows({info}).isEmpty());
}

void TestNetworkDialog::theOrderOfTheSystemIsKept()
{
    const auto rows = nicRows({nic(QStringLiteral("b"), 9, QNetworkInterface::Ethernet),
                               nic(QStringLiteral("a"), 2, QNetworkInterface::Ethernet)});
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.first().name + rows.last().name, QStringLiteral("ba"));
}

void TestNetworkDialog::theFirstIpv4AddressAndItsMaskAreShown()
{
    const auto rows = nicRows(
        {nic(QStringLiteral("Ethernet"), 4, QNetworkInterface::Ethernet,
             {QStringLiteral("fe80::1"), QStringLiteral("10.0.1.2"), QStringLiteral("10.0.2.2")})});
    QCOMPARE(rows.first().address, QStringLiteral("10.0.1.2"));
    QCOMPARE(rows.first().mask, QStringLiteral("255.255.255.0"));
}

void TestNetworkDialog::anEthernetWithOnlyAnIpv6AddressIsListedWithEmptyIpAndMask()
{
    const auto rows = nicRows({nic(QStringLiteral("Ethernet"), 4, QNetworkInterface::Ethernet,
                                   {QStringLiteral("fe80::1")})});
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().address, QString());
    QCOMPARE(rows.first().mask, QString());

    ShownDialog shown(rows);
    QCOMPARE(shown.list->topLevelItem(0)->text(0), QStringLiteral("Ethernet"));
    QCOMPARE(shown.list->topLevelItem(0)->text(1), QString());
    QCOMPARE(shown.list->topLevelItem(0)->text(2), QString());
}

void TestNetworkDialog::theSystemsInterfacesAreRead()
{
    const QList<NicInfo> interfaces = systemInterfaces();
    const QList<QNetworkInterface> expected = QNetworkInterface::allInterfaces();
    QCOMPARE(interfaces.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        QCOMPARE(interfaces.at(i).name, expected.at(i).humanReadableName());
        QCOMPARE(interfaces.at(i).index, expected.at(i).index());
        QCOMPARE(interfaces.at(i).type, expected.at(i).type());
        QCOMPARE(interfaces.at(i).isValid, expected.at(i).isValid());
        QCOMPARE(interfaces.at(i).addresses.size(), expected.at(i).addressEntries().size());
    }
}

void TestNetworkDialog::titleSizeAndHeadersAreAsTold()
{
    ShownDialog shown(twoRows());
    QCOMPARE(shown.dialog.objectName(), QStringLiteral("networkDialog"));
    QCOMPARE(shown.dialog.windowTitle(), QStringLiteral("Select Network Interface Card"));
    QCOMPARE(shown.dialog.minimumSize(), QSize(400, 300));
    QVERIFY(!shown.list->rootIsDecorated());
    const QTreeWidgetItem* const header = shown.list->headerItem();
    QCOMPARE(header->text(0) + u'|' + header->text(1) + u'|' + header->text(2),
             QStringLiteral("Name|IP Address|Subnet Mask"));
    QCOMPARE(shown.ok->text(), QStringLiteral("OK"));
    QCOMPARE(shown.cancel->text(), QStringLiteral("Cancel"));
}

void TestNetworkDialog::anEmptyListLeavesOnlyCancel()
{
    ShownDialog shown({});
    QVERIFY(!shown.ok->isEnabled());
    QVERIFY(shown.cancel->isEnabled());
    QCOMPARE(shown.dialog.selectedIndex(), 0);
}

void TestNetworkDialog::okIsEnabledExactlyWhileARowIsSelected()
{
    ShownDialog shown(twoRows());
    QVERIFY(!shown.ok->isEnabled());
    shown.click(1);
    QVERIFY(shown.ok->isEnabled());
    QCOMPARE(shown.dialog.selectedIndex(), 7);
    shown.list->clearSelection();
    QVERIFY(!shown.ok->isEnabled());
    shown.click(0);
    QTest::mouseClick(shown.ok, Qt::LeftButton);
    QCOMPARE(shown.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(shown.dialog.selectedIndex(), 4);
}

void TestNetworkDialog::aPreselectedIndexIsSelected()
{
    ShownDialog shown(twoRows(), 7);
    QCOMPARE(shown.dialog.selectedIndex(), 7);
    QVERIFY(shown.list->topLevelItem(1)->isSelected());
    QVERIFY(shown.ok->isEnabled());
}

void TestNetworkDialog::aPreselectedIndexThatNoLongerExistsSelectsNothing()
{
    ShownDialog shown(twoRows(), 5);
    QVERIFY(shown.list->selectedItems().isEmpty());
    QVERIFY(!shown.ok->isEnabled());
}

void TestNetworkDialog::fillingAgainReplacesTheRows()
{
    ShownDialog shown(twoRows(), 7);
    shown.dialog.fill(twoRows().first(1), 0);
    QCOMPARE(shown.list->topLevelItemCount(), 1);
    QVERIFY(!shown.ok->isEnabled());
    shown.click(0);
    QCOMPARE(shown.dialog.selectedIndex(), 4);
}

void TestNetworkDialog::cancelAndEscapeReject()
{
    ShownDialog cancelled(twoRows(), 4);
    QTest::mouseClick(cancelled.cancel, Qt::LeftButton);
    QVERIFY(!cancelled.dialog.isVisible());
    QCOMPARE(cancelled.dialog.result(), int(QDialog::Rejected));

    ShownDialog escaped(twoRows(), 4);
    QTest::keyClick(&escaped.dialog, Qt::Key_Escape);
    QVERIFY(!escaped.dialog.isVisible());
    QCOMPARE(escaped.dialog.result(), int(QDialog::Rejected));
}

void TestNetworkDialog::theKeyboardAloneChoosesAndAccepts()
{
    ShownDialog shown(twoRows());
    QVERIFY(shown.waitUntilActive());
    QCOMPARE(shown.dialog.focusWidget(), shown.list);
    QCOMPARE(shown.list->accessibleName(), QStringLiteral("Network interfaces"));
    QTest::keyClick(shown.list, Qt::Key_Return);
    QVERIFY2(shown.dialog.isVisible(), "nothing is selected yet");
    QTest::keyClick(shown.list, Qt::Key_Down);
    QCOMPARE(shown.dialog.selectedIndex(), 4);
    QTest::keyClick(shown.list, Qt::Key_Down);
    QCOMPARE(shown.dialog.selectedIndex(), 7);
    QTest::keyClick(shown.list, Qt::Key_Tab);
    QCOMPARE(shown.dialog.focusWidget(), shown.ok);
    QTest::keyClick(shown.ok, Qt::Key_Tab);
    QCOMPARE(shown.dialog.focusWidget(), shown.cancel);
    QTest::keyClick(shown.cancel, Qt::Key_Backtab);
    QTest::keyClick(shown.ok, Qt::Key_Backtab);
    QTest::keyClick(shown.list, Qt::Key_Return);
    QCOMPARE(shown.dialog.result(), int(QDialog::Accepted));
}

void TestNetworkDialog::theKeyboardChoosesTheOnlyRow()
{
    ShownDialog shown(twoRows().first(1));
    QVERIFY(shown.waitUntilActive());
    QTest::keyClick(shown.list, Qt::Key_Space);
    QCOMPARE(shown.dialog.selectedIndex(), 4);
    QTest::keyClick(shown.list, Qt::Key_Return);
    QCOMPARE(shown.dialog.result(), int(QDialog::Accepted));
}

void TestNetworkDialog::keysBeginAmongTheRowsOnOffer_data()
{
    QTest::addColumn<qsizetype>("rows");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("chosen");
    QTest::newRow("Down among two") << qsizetype(2) << Qt::Key_Down << 4;
    QTest::newRow("Up among two") << qsizetype(2) << Qt::Key_Up << 4;
    QTest::newRow("Home among two") << qsizetype(2) << Qt::Key_Home << 4;
    QTest::newRow("Page Up among two") << qsizetype(2) << Qt::Key_PageUp << 4;
    QTest::newRow("End among two") << qsizetype(2) << Qt::Key_End << 7;
    QTest::newRow("Page Down among two") << qsizetype(2) << Qt::Key_PageDown << 7;
    QTest::newRow("Down where there is only one") << qsizetype(1) << Qt::Key_Down << 4;
    QTest::newRow("Up where there is only one") << qsizetype(1) << Qt::Key_Up << 4;
    QTest::newRow("Home where there is only one") << qsizetype(1) << Qt::Key_Home << 4;
    QTest::newRow("End where there is only one") << qsizetype(1) << Qt::Key_End << 4;
    QTest::newRow("Page Up where there is only one") << qsizetype(1) << Qt::Key_PageUp << 4;
    QTest::newRow("Page Down where there is only one") << qsizetype(1) << Qt::Key_PageDown << 4;
}

void TestNetworkDialog::keysBeginAmongTheRowsOnOffer()
{
    QFETCH(const qsizetype, rows);
    QFETCH(const Qt::Key, key);
    QFETCH(const int, chosen);
    ShownDialog shown(twoRows().first(rows));
    QVERIFY(shown.waitUntilActive());
    QCOMPARE(shown.dialog.focusWidget(), shown.list);
    QCOMPARE(shown.list->currentItem(), shown.list->topLevelItem(0));
    QVERIFY(shown.list->selectedItems().isEmpty());
    QVERIFY(!shown.ok->isEnabled());
    QTest::keyClick(shown.list, key);
    QCOMPARE(shown.dialog.selectedIndex(), chosen);
    QVERIFY(shown.ok->isEnabled());
}

void TestNetworkDialog::returnPressesTheButtonThatHasTheFocus()
{
    ShownDialog shown(twoRows(), 4);
    QVERIFY(shown.waitUntilActive());
    shown.cancel->setFocus();
    QTest::keyClick(shown.cancel, Qt::Key_Return);
    QVERIFY(!shown.dialog.isVisible());
    QCOMPARE(shown.dialog.result(), int(QDialog::Rejected));
}

void TestNetworkDialog::anEmptyListSaysWhyItIsEmpty()
{
    ShownDialog empty({});
    QCOMPARE(empty.list->accessibleDescription(),
             QStringLiteral("This computer has no wired network interface. Check that a network "
                            "adapter is connected and switched on, then start again."));
    const QImage text = empty.list->viewport()->grab().toImage();
    QVERIFY(text.convertToFormat(QImage::Format_Indexed8).colorCount() > 1);
    ShownDialog filled(twoRows());
    QCOMPARE(filled.list->accessibleDescription(), QString());
}

void TestNetworkDialog::nothingIsClippedAtTheLeastSize()
{
    ShownDialog shown({{QStringLiteral("Ethernet 2"), QStringLiteral("192.168.100.200"),
                        QStringLiteral("255.255.255.255"), 4}});
    shown.dialog.resize(shown.dialog.minimumSize());
    QVERIFY(shown.waitUntilActive());
    QVERIFY(shown.list->header()->length() <= shown.list->viewport()->width());
    const QTreeWidgetItem* const row = shown.list->topLevelItem(0);
    for (int column = 0; column < 3; ++column) {
        const int needed = shown.list->fontMetrics().horizontalAdvance(row->text(column));
        QVERIFY(shown.list->columnWidth(column) > needed);
        QVERIFY(shown.list->columnWidth(column) >= shown.list->header()->sectionSizeHint(column));
    }
}

void TestNetworkDialog::fillReadsTheComputersWiredInterfaces()
{
    NetworkDialog dialog(nullptr);
    dialog.fill(0);
    const auto* const list = dialog.findChild<QTreeWidget*>(QStringLiteral("nicList"));
    QCOMPARE(list->topLevelItemCount(), int(nicRows(systemInterfaces()).size()));
}

TESSEL_TEST_MAIN(TestNetworkDialog)
#include "tst_networkdialog.moc"
