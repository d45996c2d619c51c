#include "resumexml.h"
#include "testcase.h"

#include <QDomDocument>
#include <QTest>

namespace {

SavedWork sampleWork()
{
    SavedWork work;
    work.pageIndex = 5;
    work.sections = {
        QList<SavedDevice>{
            {QStringLiteral("Süd \"1\""), QStringLiteral("10.0.0.1"),
             QStringLiteral("a0:00:00:00:00:01"), QStringLiteral("PX-HB"), 2, true},
            {QString(), QStringLiteral("10.0.0.2"), QString(), QStringLiteral("DSK4M"), 0, false}},
        QList<RoomInfo>{{1, {{0, 1}, {2, 3}}}, {2, {}}},
        QList<SceneInfo>{{1, QStringLiteral("1+2"), {}}, {2, QStringLiteral("1/2"), {}}},
        QList<DeviceSetInfo>{{1, 1, QStringLiteral("10.0.0.1"), true, QStringLiteral("R")},
                             {2, 2, QStringLiteral("10.0.0.2"), false, QStringLiteral("L")}},
        QList<PresetInfo>{{1, 1, QStringLiteral("<all> & more")}, {2, 2, QString()}},
        QSize(1000, 800)};
    return work;
}

QString sampleText()
{
    return QStringLiteral(
        "<Tessel Page=\"5\">\n"
        " <DeviceDataList>\n"
        "  <DeviceData Label=\"Süd &quot;1&quot;\" IP=\"10.0.0.1\""
        " MacAddress=\"a0:00:00:00:00:01\" Model=\"PX-HB\" Room=\"2\" ModifiedLabel=\"1\"/>\n"
        "  <DeviceData Label=\"\" IP=\"10.0.0.2\" MacAddress=\"\" Model=\"DSK4M\" Room=\"0\""
        " ModifiedLabel=\"0\"/>\n"
        " </DeviceDataList>\n"
        " <RoomInfoList>\n"
        "  <RoomInfo Number=\"1\" PosList=\"{0,1}/{2,3}\"/>\n"
        "  <RoomInfo Number=\"2\" PosList=\"\"/>\n"
        " </RoomInfoList>\n"
        " <SceneInfoList>\n"
        "  <SceneInfo Number=\"1\" RoomGroup=\"1+2\"/>\n"
        "  <SceneInfo Number=\"2\" RoomGroup=\"1/2\"/>\n"
        " </SceneInfoList>\n"
        " <DeviceSetInfoList>\n"
        "  <DeviceSetInfo DeviceSetNumber=\"1\" SceneNumber=\"1\" IP=\"10.0.0.1\" Remove=\"1\""
        " SpeakerPosition=\"R\"/>\n"
        "  <DeviceSetInfo DeviceSetNumber=\"2\" SceneNumber=\"2\" IP=\"10.0.0.2\" Remove=\"0\""
        " SpeakerPosition=\"L\"/>\n"
        " </DeviceSetInfoList>\n"
        " <PresetInfoList>\n"
        "  <PresetInfo DeviceSetNumber=\"1\" SceneNumber=\"1\""
        " PresetName=\"&lt;all&gt; &amp; more\"/>\n"
        "  <PresetInfo DeviceSetNumber=\"2\" SceneNumber=\"2\" PresetName=\"\"/>\n"
        " </PresetInfoList>\n"
        " <WindowSize Width=\"1000\" Height=\"800\"/>\n"
        "</Tessel>\n");
}

/// What reading `inside` between the root's tags gives.
std::optional<SavedWork> readInside(const QString& inside)
{
    return readResumeXml(QStringLiteral("<Tessel Page=\"3\">") + inside +
                         QStringLiteral("</Tessel>"));
}

/// The records of the first section when it is a list of this sort.
template <typename Section>
std::optional<Section> firstSection(const QString& inside)
{
    const std::optional<SavedWork> work = readInside(inside);
    const auto* section =
        work && !work->sections.isEmpty() ? std::get_if<Section>(&work->sections.first()) : nullptr;
    return section != nullptr ? std::optional(*section) : std::nullopt;
}

} // namespace

class TestResumeXml : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textIsExactAndInTheListedOrder();
    void textReadsBackEqualWithQDomDocument();
    void emptyWorkHasEmptyLists();
    void workComesBackAsItWas();
    void foreignRootOrPageIsRefused_data();
    void foreignRootOrPageIsRefused();
    void cutTextIsRefusedAtEveryLength();
    void damagedTailOfTheTextRefusesAllOfIt();
    void foreignElementEndsTheReadingThere();
    void foreignElementInAListIsPassedOver();
    void sectionsKeepTheirOrderAndMayRepeat();
    void numbersThatDoNotConvertAreZero();
    void missingSpeakerPositionIsLeft();
    void onlyOneIsTrue();
    void impossibleRoomsAreLeftOut();
    void impossibleDeviceRoomIsNone_data();
    void impossibleDeviceRoomIsNone();
    void impossibleLayoutsAreLeftOut();
    void impossibleWindowSizeIsNone_data();
    void impossibleWindowSizeIsNone();
};

void TestResumeXml::textIsExactAndInTheListedOrder()
{
    QCOMPARE(writeResumeXml(sampleWork()), sampleText());
    QCOMPARE(writeResumeXml(sampleWork()), writeResumeXml(sampleWork()));
}

void TestResumeXml::textReadsBackEqualWithQDomDocument()
{
    QDomDocument document;
    QVERIFY(document.setContent(writeResumeXml(sampleWork())));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.tagName(), QStringLiteral("Tessel"));
    QCOMPARE(root.childNodes().size(), 6);
    const QDomElement device =
        root.firstChildElement(QStringLiteral("DeviceDataList")).firstChildElement();
    QCOMPARE(device.attribute(QStringLiteral("Label")), QStringLiteral("Süd \"1\""));
    const QDomElement preset =
        root.firstChildElement(QStringLiteral("PresetInfoList")).firstChildElement();
    QCOMPARE(preset.attribute(QStringLiteral("PresetName")), QStringLiteral("<all> & more"));
}

void TestResumeXml::emptyWorkHasEmptyLists()
{
    SavedWork work;
    work.sections = {QList<SavedDevice>(),   QList<RoomInfo>(),   QList<SceneInfo>(),
                     QList<DeviceSetInfo>(), QList<PresetInfo>(), QSize()};
    const QString text = QStringLiteral("<Tessel Page=\"0\">\n"
                                        " <DeviceDataList/>\n"
                                        " <RoomInfoList/>\n"
                                        " <SceneInfoList/>\n"
                                        " <DeviceSetInfoList/>\n"
                                        " <PresetInfoList/>\n"
                                        " <WindowSize Width=\"-1\" Height=\"-1\"/>\n"
                                        "</Tessel>\n");
    QCOMPARE(writeResumeXml(work), text);
    const auto read = readResumeXml(text);
    QVERIFY(read);
    QCOMPARE(writeResumeXml(*read), text);
}

void TestResumeXml::workComesBackAsItWas()
{
    const auto work = readResumeXml(sampleText());
    QVERIFY(work);
    QVERIFY(!work->hasForeignElement);
    QCOMPARE(writeResumeXml(*work), sampleText());
}

void TestResumeXml::foreignRootOrPageIsRefused_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* text) { QTest::newRow(text) << QString::fromLatin1(text); };
    row("");
    row("no markup");
    row("<Other Page=\"1\"/>");
    row("<tessel Page=\"1\"/>");
    row("<x:Tessel Page=\"1\"/>");
    row("<Root><Tessel Page=\"1\"/></Root>");
    row("<Tessel/>");
    row("<Tessel page=\"1\"/>");
    row("<Tessel Page=\"\"/>");
    row("<Tessel Page=\"one\"/>");
    row("<Tessel Page=\"1.0\"/>");
    row("<Tessel Page=\"0x1\"/>");
    row("<Tessel Page=\"-1\"/>");
    row("<Tessel Page=\"9\"/>");
    row("<Tessel Page=\"99999999999\"/>");
    row("<!DOCTYPE Tessel><Tessel Page=\"1\"/>");
}

void TestResumeXml::foreignRootOrPageIsRefused()
{
    QFETCH(const QString, text);
    QVERIFY(!readResumeXml(text));
    for (int page = 0; page <= 8; ++page) {
        const QString good = QStringLiteral("<Tessel Page=\"%1\"/>").arg(page);
        QCOMPARE(readResumeXml(good)->pageIndex, page);
    }
}

void TestResumeXml::cutTextIsRefusedAtEveryLength()
{
    const QString text = sampleText().trimmed();
    for (qsizetype length = 0; length < text.size(); ++length) {
        QVERIFY2(!readResumeXml(text.first(length)), qPrintable(QString::number(length)));
    }
    QVERIFY(readResumeXml(text));
}

void TestResumeXml::damagedTailOfTheTextRefusesAllOfIt()
{
    QVERIFY(!readResumeXml(sampleText() + QLatin1Char('x')));
    QVERIFY(!readResumeXml(sampleText() + QStringLiteral("<more/>")));
    QVERIFY(!readResumeXml(
        sampleText().replace(QStringLiteral("</PresetInfoList>"), QStringLiteral("</Preset>"))));
    QVERIFY(!readInside(QStringLiteral("<Foreign><a></Foreign>")));
}

void TestResumeXml::foreignElementEndsTheReadingThere()
{
    const auto work = readInside(QStringLiteral("<RoomInfoList/><Foreign><RoomInfoList/></Foreign>"
                                                "<PresetInfoList/>"));
    QVERIFY(work);
    QVERIFY(work->hasForeignElement);
    QCOMPARE(work->sections.size(), 1);
}

void TestResumeXml::foreignElementInAListIsPassedOver()
{
    const auto rooms = firstSection<QList<RoomInfo>>(
        QStringLiteral("<RoomInfoList><Wall Number='3'><RoomInfo Number='4'/></Wall>text"
                       "<RoomInfo Number='1'><RoomInfo Number='2'/></RoomInfo></RoomInfoList>"));
    QVERIFY(rooms);
    QCOMPARE(rooms->size(), 1);
    QCOMPARE(rooms->first().number, 1);
}

void TestResumeXml::sectionsKeepTheirOrderAndMayRepeat()
{
    const auto work =
        readInside(QStringLiteral("<WindowSize/><RoomInfoList/><DeviceDataList/><RoomInfoList/>"));
    QVERIFY(work);
    QCOMPARE(work->sections.size(), 4);
    QVERIFY(std::holds_alternative<QSize>(work->sections.at(0)));
    QVERIFY(std::holds_alternative<QList<RoomInfo>>(work->sections.at(1)));
    QVERIFY(std::holds_alternative<QList<SavedDevice>>(work->sections.at(2)));
    QVERIFY(std::holds_alternative<QList<RoomInfo>>(work->sections.at(3)));
}

void TestResumeXml::numbersThatDoNotConvertAreZero()
{
    const auto room = firstSection<QList<RoomInfo>>(
        QStringLiteral("<RoomInfoList><RoomInfo Number='one' PosList='{1,1}'/></RoomInfoList>"));
    QVERIFY(room && room->size() == 1);
    QCOMPARE(room->first().number, 0);
    const auto preset = firstSection<QList<PresetInfo>>(QStringLiteral(
        "<PresetInfoList><PresetInfo DeviceSetNumber='' SceneNumber='1e3'/></PresetInfoList>"));
    QVERIFY(preset && preset->size() == 1);
    QCOMPARE(preset->first().deviceSetNumber, 0);
    QCOMPARE(preset->first().sceneNumber, 0);
    const auto device = firstSection<QList<SavedDevice>>(
        QStringLiteral("<DeviceDataList><DeviceData Room='2x'/></DeviceDataList>"));
    QVERIFY(device && device->size() == 1);
    QCOMPARE(device->first().roomNumber, 0);
    const auto size = firstSection<QSize>(QStringLiteral("<WindowSize Width='900' Height='?'/>"));
    QCOMPARE(size, QSize(900, 0));
}

void TestResumeXml::missingSpeakerPositionIsLeft()
{
    const auto records = firstSection<QList<DeviceSetInfo>>(
        QStringLiteral("<DeviceSetInfoList><DeviceSetInfo/><DeviceSetInfo SpeakerPosition='R'/>"
                       "<DeviceSetInfo SpeakerPosition=''/></DeviceSetInfoList>"));
    QVERIFY(records && records->size() == 3);
    QCOMPARE(records->at(0).speakerPosition, QStringLiteral("L"));
    QCOMPARE(records->at(1).speakerPosition, QStringLiteral("R"));
    QCOMPARE(records->at(2).speakerPosition, QString());
}

void TestResumeXml::onlyOneIsTrue()
{
    const auto records = firstSection<QList<DeviceSetInfo>>(
        QStringLiteral("<DeviceSetInfoList><DeviceSetInfo Remove='1'/><DeviceSetInfo Remove='0'/>"
                       "<DeviceSetInfo Remove='true'/><DeviceSetInfo Remove='01'/>"
                       "<DeviceSetInfo/></DeviceSetInfoList>"));
    QVERIFY(records && records->size() == 5);
    for (qsizetype index = 0; index < records->size(); ++index) {
        QCOMPARE(records->at(index).remove, index == 0);
    }
}

void TestResumeXml::impossibleRoomsAreLeftOut()
{
    const auto rooms = firstSection<QList<RoomInfo>>(QStringLiteral(
        "<RoomInfoList><RoomInfo Number='-1' PosList='{0,0}'/><RoomInfo Number='5'/>"
        "<RoomInfo Number='2147483647'/><RoomInfo Number='4' PosList='{0,0}/{8,8}/{-1,0}'/>"
        "</RoomInfoList>"));
    QVERIFY(rooms && rooms->size() == 1);
    QCOMPARE(rooms->first().number, 4);
    QCOMPARE(rooms->first().positionList, QList<QPoint>({{0, 0}}));
}

void TestResumeXml::impossibleDeviceRoomIsNone_data()
{
    QTest::addColumn<QString>("room");
    QTest::addColumn<int>("expected");
    QTest::newRow("4") << QStringLiteral("4") << 4;
    QTest::newRow("5") << QStringLiteral("5") << 0;
    QTest::newRow("-1") << QStringLiteral("-1") << 0;
    QTest::newRow("huge") << QStringLiteral("2147483647") << 0;
}

void TestResumeXml::impossibleDeviceRoomIsNone()
{
    QFETCH(const QString, room);
    const auto devices = firstSection<QList<SavedDevice>>(
        QStringLiteral("<DeviceDataList><DeviceData Room='%1'/></DeviceDataList>").arg(room));
    QVERIFY(devices && devices->size() == 1);
    QTEST(devices->first().roomNumber, "expected");
}

void TestResumeXml::impossibleLayoutsAreLeftOut()
{
    QString inside = QStringLiteral("<SceneInfoList><SceneInfo Number='1' RoomGroup='%1'/>")
                         .arg(QStringLiteral("1/").repeated(1000));
    for (int number = 2; number < 500; ++number) {
        inside += QStringLiteral("<SceneInfo Number='%1' RoomGroup='1/2'/>").arg(number);
    }
    const auto scenes = firstSection<QList<SceneInfo>>(inside + QStringLiteral("</SceneInfoList>"));
    QVERIFY(scenes);
    QCOMPARE(scenes->size(), 100);
    QCOMPARE(scenes->first().number, 2);
}

void TestResumeXml::impossibleWindowSizeIsNone_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("usual") << 800 << 600 << QSize(800, 600);
    QTest::newRow("never set") << -1 << -1 << QSize();
    QTest::newRow("negative width") << -800 << 600 << QSize();
    QTest::newRow("negative height") << 800 << -600 << QSize();
    QTest::newRow("huge width") << 2147483647 << 600 << QSize();
    QTest::newRow("huge height") << 800 << 10001 << QSize();
}

void TestResumeXml::impossibleWindowSizeIsNone()
{
    QFETCH(const int, width);
    QFETCH(const int, height);
    QFETCH(const QSize, expected);
    const auto size = firstSection<QSize>(
        QStringLiteral("<WindowSize Width='%1' Height='%2'/>").arg(width).arg(height));
    QCOMPARE(size, expected);
}

TESSEL_TEST_MAIN(TestResumeXml)
#include "tst_resumexml.moc"
