#include "hubrequestparser.h"
#include "hubstate.h"
#include "hubtexts.h"
#include "testcase.h"

#include <QJsonDocument>
#include <QTest>

namespace {

const QByteArray host = "127.0.1.1";
const QByteArray wrongHash(32, 'a');

/// A hub that is spoken to without sockets.
struct Desk
{
    HubDescription description = standardHub(0);
    HubState hub;

    explicit Desk(const std::optional<QString>& password = QStringLiteral("secret"))
        : hub([&] {
            description.password = password;
            return description;
        }())
    {
    }

    HubReply ask(const QByteArray& bytes)
    {
        HubRequest request = readRequest(bytes).request;
        routeRequest(request, description.storageName());
        return hub.handle(request);
    }

    QByteArray tokenOf(const QByteArray& bytes)
    {
        return QJsonDocument::fromJson(ask(bytes).body)
            .object()
            .value(QLatin1String("access-token"))
            .toString()
            .toLatin1();
    }

    QByteArray guest() { return tokenOf(HubTexts::token(host)); }
    QByteArray admin() { return tokenOf(HubTexts::logIn(host, guest())); }
};

} // namespace

/// The hub as a state machine.
class TestHubState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void noLogInBeforeAPasswordIsSet();
    void firstPasswordIsSetOnlyOnce();
    void wrongPasswordIsRefused();
    void everyCallNeedsAValidToken_data();
    void everyCallNeedsAValidToken();
    void wrongTokenIsRefusedEvenWhereNoneIsNeeded();
    void guestTokenEndsWithTheLogIn();
    void exportIsReadyAfterSomePolls();
    void exportMustBeBegun();
    void filesNeedTheirPreset();
    void filesMustBePresetFiles();
    void entryMakesThePresetAnew();
    void recallNeedsThePreset();
    void invalidatedTokenOpensNothing();
    void rebootKeepsPresetsAndForgetsTokens();
    void badBodiesAreRefused_data();
    void badBodiesAreRefused();
    void identificationIsCounted();
};

void TestHubState::noLogInBeforeAPasswordIsSet()
{
    Desk desk(std::nullopt);
    QCOMPARE(desk.ask(HubTexts::logIn(host, desk.guest())).status, 403);
    QVERIFY(!desk.hub.isInitialised());
}

void TestHubState::firstPasswordIsSetOnlyOnce()
{
    Desk desk(std::nullopt);
    QCOMPARE(desk.ask(HubTexts::setPassword(host, desk.guest())).status, 200);
    QVERIFY(desk.hub.isInitialised());
    QCOMPARE(desk.ask(HubTexts::setPassword(host, desk.guest(), wrongHash)).status, 403);
    QVERIFY(!desk.admin().isEmpty());
}

void TestHubState::wrongPasswordIsRefused()
{
    Desk desk;
    const HubReply reply = desk.ask(HubTexts::logIn(host, desk.guest(), wrongHash));
    QCOMPARE(reply.status, 401);
    QVERIFY(!reply.body.isEmpty());
    QCOMPARE(desk.hub.logInCount(), 0);
}

void TestHubState::everyCallNeedsAValidToken_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<bool>("guestWillDo");
    const QByteArray mark = "TOKEN";
    QTest::newRow("first password") << HubTexts::setPassword(host, mark) << true;
    QTest::newRow("log-in") << HubTexts::logIn(host, mark) << true;
    QTest::newRow("export") << HubTexts::startExport(host, mark) << false;
    QTest::newRow("poll") << HubTexts::readExport(host, mark) << false;
    QTest::newRow("entry") << HubTexts::presetEntry(host, mark, 1, "a") << false;
    QTest::newRow("hub file") << HubTexts::file(host, mark, 1, "hub01", HubTexts::hubXml())
                              << false;
    QTest::newRow("device file") << HubTexts::file(host, mark, 1, "021A00100001",
                                                   HubTexts::deviceXml())
                                 << false;
    QTest::newRow("recall") << HubTexts::recall(host, mark, 1) << false;
    QTest::newRow("invalidation") << HubTexts::invalidate(host, mark) << false;
    QTest::newRow("identification") << HubTexts::identification(host, mark) << false;
}

void TestHubState::everyCallNeedsAValidToken()
{
    QFETCH(const QByteArray, before);
    QFETCH(const bool, guestWillDo);
    Desk desk;
    const auto statusWith = [&](const QByteArray& token) {
        return desk.ask(QByteArray(before).replace("bearer TOKEN", "bearer " + token)).status;
    };
    QCOMPARE(statusWith(""), 401);
    QCOMPARE(statusWith("unknown"), 401);
    QCOMPARE(statusWith(desk.guest()) != 401, guestWillDo);
    QVERIFY(statusWith(desk.admin()) != 401);
}

void TestHubState::wrongTokenIsRefusedEvenWhereNoneIsNeeded()
{
    Desk desk;
    QCOMPARE(desk.ask("GET http://127.0.1.1/api/v0/auth/token HTTP/1.1\r\n"
                      "authorization: bearer unknown\r\n\r\n")
                 .status,
             401);
}

void TestHubState::guestTokenEndsWithTheLogIn()
{
    Desk desk;
    const QByteArray guest = desk.guest();
    QCOMPARE(desk.ask(HubTexts::logIn(host, guest)).status, 200);
    QCOMPARE(desk.ask(HubTexts::logIn(host, guest)).status, 401);
    QCOMPARE(desk.hub.logInCount(), 1);
}

void TestHubState::exportIsReadyAfterSomePolls()
{
    Desk desk;
    const QByteArray token = desk.admin();
    desk.ask(HubTexts::startExport(host, token));
    for (int poll = 0; poll < desk.description.exportPolls; ++poll) {
        const HubReply reply = desk.ask(HubTexts::readExport(host, token));
        QCOMPARE(reply.status, 200);
        QVERIFY(!reply.body.isEmpty());
        QCOMPARE(reply.indexOf("Content-Disposition"), -1);
    }
    for (int again = 0; again < 2; ++again) {
        const HubReply reply = desk.ask(HubTexts::readExport(host, token));
        QVERIFY(reply.headerBytes().contains(
            "\r\nContent-Disposition: attachment; filename=\"hub01.xml\"\r\n"));
        QVERIFY(!reply.body.contains("\r\n\r\n"));
    }
}

void TestHubState::exportMustBeBegun()
{
    Desk desk;
    QCOMPARE(desk.ask(HubTexts::readExport(host, desk.admin())).status, 409);
}

void TestHubState::filesNeedTheirPreset()
{
    Desk desk;
    const QByteArray token = desk.admin();
    desk.ask(HubTexts::presetEntry(host, token, 2, "two"));
    QCOMPARE(desk.ask(HubTexts::file(host, token, 1, "hub01", HubTexts::hubXml())).status, 404);
    QCOMPARE(desk.ask(HubTexts::file(host, token, 2, "hub01", HubTexts::hubXml())).status, 200);
    QCOMPARE(desk.hub.presets().value(2).files.keys(), QStringList{QStringLiteral("hub01")});
}

void TestHubState::filesMustBePresetFiles()
{
    Desk desk;
    const QByteArray token = desk.admin();
    desk.ask(HubTexts::presetEntry(host, token, 1, "one"));
    for (const char* bad : {"", "<provisioning>", "<provisioning/>", "<a><config/></a>", "text"}) {
        QCOMPARE(desk.ask(HubTexts::file(host, token, 1, "hub01", bad)).status, 400);
    }
    QCOMPARE(desk.ask(HubTexts::file(host, token, 1, "..%2F", HubTexts::hubXml())).status, 400);
    QVERIFY(desk.hub.presets().value(1).files.isEmpty());
}

void TestHubState::entryMakesThePresetAnew()
{
    Desk desk;
    const QByteArray token = desk.admin();
    desk.ask(HubTexts::presetEntry(host, token, 1, "one"));
    desk.ask(HubTexts::file(host, token, 1, "hub01", HubTexts::hubXml()));
    desk.ask(HubTexts::presetEntry(host, token, 1, "uno"));
    QCOMPARE(desk.hub.presets().value(1).description(), QStringLiteral("uno"));
    QVERIFY(desk.hub.presets().value(1).files.isEmpty());
}

void TestHubState::recallNeedsThePreset()
{
    Desk desk;
    const QByteArray token = desk.admin();
    QCOMPARE(desk.ask(HubTexts::recall(host, token, 1)).status, 404);
    desk.ask(HubTexts::presetEntry(host, token, 1, "one"));
    QCOMPARE(desk.ask(HubTexts::recall(host, token, 1)).body,
             QByteArray("{\"request\":\"accepted\"}"));
    QCOMPARE(desk.hub.recalledPreset(), 1);
}

void TestHubState::invalidatedTokenOpensNothing()
{
    Desk desk;
    const QByteArray token = desk.admin();
    QCOMPARE(desk.ask(HubTexts::invalidate(host, token)).body,
             QByteArray("{\"status\":\"invalid\"}"));
    QCOMPARE(desk.ask(HubTexts::recall(host, token, 1)).status, 401);
}

void TestHubState::rebootKeepsPresetsAndForgetsTokens()
{
    Desk desk;
    const QByteArray token = desk.admin();
    desk.ask(HubTexts::presetEntry(host, token, 1, "one"));
    desk.ask(HubTexts::startExport(host, token));
    desk.hub.reboot();
    QCOMPARE(desk.ask(HubTexts::recall(host, token, 1)).status, 401);
    QCOMPARE(desk.ask(HubTexts::readExport(host, desk.admin())).status, 409);
    QCOMPARE(desk.hub.presets().size(), 1);
    QVERIFY(desk.hub.isInitialised());
}

void TestHubState::badBodiesAreRefused_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("body");
    const auto row = [](const char* name, const char* method, const char* path, const char* body) {
        QTest::newRow(name) << QByteArray(method) << QByteArray(path) << QByteArray(body);
    };
    row("no export asked for", "POST", "config/export/self/", "{\"export\":0}");
    row("an entry that is no JSON", "PUT", "config/presets/", "{\"description\": \"a\"");
    row("an entry without a number", "PUT", "config/presets/", "{\"description\": \"a\"}");
    row("an entry without a name", "PUT", "config/presets/", "{\"preset-number\": 1}");
    row("an entry of number 0", "PUT", "config/presets/",
        R"({"description": "a", "preset-number": 0})");
    row("an entry of number 100", "PUT", "config/presets/",
        R"({"description": "a", "preset-number": 100})");
    row("an invalidation of nothing", "POST", "auth/token/invalidate", "{\"status\": \"invalid\"}");
    row("an invalidation of a foreign token", "POST", "auth/token/invalidate",
        R"({"access-token": "x", "status": "invalid"})");
}

void TestHubState::badBodiesAreRefused()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, path);
    QFETCH(const QByteArray, body);
    Desk desk;
    QCOMPARE(desk.ask(HubTexts::withBody(method, host, path, desk.admin(), body)).status, 400);
    QVERIFY(desk.hub.presets().isEmpty());
}

void TestHubState::identificationIsCounted()
{
    Desk desk;
    QCOMPARE(desk.ask(HubTexts::identification(host, desk.admin())).status, 200);
    QCOMPARE(desk.hub.identificationCount(), 1);
}

TESSEL_TEST_MAIN(TestHubState)
#include "tst_hubstate.moc"
