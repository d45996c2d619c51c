#include "hubtexts.h"
#include "presetfilecheck.h"
#include "testcase.h"

#include <QTest>

/// The hub's view of a preset file.
class TestPresetFileCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void formOfTheFile_data();
    void formOfTheFile();
};

void TestPresetFileCheck::formOfTheFile_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<bool>("isHubFile");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<QString>("difference");

    const QByteArray hub = HubTexts::hubXml();
    const QByteArray device = HubTexts::deviceXml();
    const auto hubRow = [&hub](const char* name, const char* before, const char* after,
                               const char* difference) {
        QTest::newRow(name) << QByteArray(hub).replace(before, after) << true << true
                            << QString::fromUtf8(difference);
    };
    const char* order =
        "file: the attributes of \"config\" are not the prescribed ones in their order";
    const char* layout = "file: expected three lines, indented by one space per level";
    hubRow("a hub's file", "", "", "");
    hubRow("a named hub", "/>", R"( sys.systemname="Ä &quot;" sys.systemname-mode="0"/>)", "");
    hubRow("a hub has mode 0", "/>", R"( sys.systemname="A" sys.systemname-mode="1"/>)",
           "file: unexpected value \"1\" of \"sys.systemname-mode\"");
    hubRow("the name without its mode", "/>", R"( sys.systemname="A"/>)", order);
    hubRow("a missing peripheral", R"( peripheral.mac-addr24="00:00:00:00:00:00")", "", order);
    hubRow("another order", "mac-addr1=", "mac-addr25=", order);
    hubRow("an address in lower case", R"(mac-addr3="00:)", R"(mac-addr3="0a:)",
           "file: unexpected value \"0a:00:00:00:00:00\" of \"peripheral.mac-addr3\"");
    hubRow("an unknown device's empty address", R"(mac-addr3="00:00:00:00:00:00")",
           R"(mac-addr3="")", "");
    hubRow("a third position", R"(position24="1")", R"(position24="3")",
           "file: unexpected value \"3\" of \"peripheral.position24\"");
    hubRow("no indent", "\n <config", "\n<config", layout);
    QTest::newRow("a declaration")
        << "<?xml version=\"1.0\"?>\n" + hub << true << true << QString::fromUtf8(layout);
    QTest::newRow("a device's file") << device << false << true << QString();
    QTest::newRow("a named access point")
        << QByteArray(device).replace("/>", R"( sys.systemname="A" sys.systemname-mode="1"/>)")
        << false << true << QString();
    QTest::newRow("a hub's file for a device") << hub << false << true << QString::fromUtf8(order);
    QTest::newRow("a device's file for a hub")
        << device << true << true << QString::fromUtf8(order);
    QTest::newRow("another root")
        << QByteArray("<a>\n <config/>\n</a>\n") << false << false
        << QStringLiteral("file: expected \"provisioning\" with one \"config\" in it");
    QTest::newRow("broken XML") << QByteArray("<provisioning>") << false << false
                                << QStringLiteral("file: not well-formed XML");
    QTest::newRow("nothing") << QByteArray() << false << false
                             << QStringLiteral("file: not well-formed XML");
}

void TestPresetFileCheck::formOfTheFile()
{
    QFETCH(const QByteArray, xml);
    QFETCH(const bool, isHubFile);
    QTEST(isPresetFile(xml), "isTaken");
    QTEST(presetFileDifference(xml, isHubFile).value_or(QString()), "difference");
}

TESSEL_TEST_MAIN(TestPresetFileCheck)
#include "tst_presetfilecheck.moc"
