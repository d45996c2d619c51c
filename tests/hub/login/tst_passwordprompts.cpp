#include "httprequest.h"
#include "hubdialog.h"
#include "senderfixture.h"
#include "testcase.h"

#include <QLabel>
#include <QPointer>
#include <QTest>
#include <QTreeWidget>

/// The dialogs of a sender: which one comes up when, and what follows from it.
class TestPasswordPrompts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anInitialisedHubIsAskedForItsPasswordOnly();
    void aNewHubGetsAPasswordBeforeTheLogIn();
    void aRefusedInitialPasswordIsAskedForAgainWithWhatWasTyped_data();
    void aRefusedInitialPasswordIsAskedForAgainWithWhatWasTyped();
    void screenReadersAreToldOfARefusedInitialPassword();
    void aWrongPasswordIsAskedForAgainUntilItIsRight();
    void theErrorOfAnEarlierRunIsGoneAtTheNext();
    void anEmptyPasswordIsHashedLikeAnyOther();
    void cancelEndsTheRun();
    void cancellingTheInitialPasswordEndsTheRun();
    void startAfterCancelAsksAgain();
    void theDialogNamesTheHubAndIdentifiesIt();
    void theSameDialogServesEveryPrompt();
};

namespace {

QString hub()
{
    return QStringLiteral("127.21.2.1");
}

bool isInitial(const HubDialog* dialog)
{
    return dialog->objectName() == QLatin1String("initialPasswordDialog");
}

bool isErrorVisible(const HubDialog* dialog)
{
    return dialog->findChild<QLabel*>(QStringLiteral("errorLabel"))->isVisible();
}

ScriptedAnswer refusal(const char* status)
{
    return {{httpReply(status, R"({"request": "refused"})")}};
}

} // namespace

void TestPasswordPrompts::anInitialisedHubIsAskedForItsPasswordOnly()
{
    SenderFixture f(hub());
    bool initial = false;
    f.answer = [&](HubDialog* dialog, int) {
        initial = isInitial(dialog);
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.logIn());
    QCOMPARE(f.watcher.count(), 1);
    QVERIFY(!initial);
    QCOMPARE(f.steps(), QStringLiteral("0 1 3"));
}

void TestPasswordPrompts::aNewHubGetsAPasswordBeforeTheLogIn()
{
    SenderFixture f(hub());
    f.script.initialized = 0;
    QStringList dialogs;
    f.answer = [&](HubDialog* dialog, int) {
        dialogs.append(dialog->objectName());
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.logIn());
    QCOMPARE(dialogs,
             QStringList({QStringLiteral("initialPasswordDialog"), QStringLiteral("loginDialog")}));
    QCOMPARE(f.steps(), QStringLiteral("0 1 2 3"));
    const QByteArray body =
        "{\"admin\": \"" + passwordDigest(SenderFixture::password()).toUtf8() + "\"}";
    QVERIFY(f.peer.requests().at(2).endsWith("\r\n\r\n" + body));
}

void TestPasswordPrompts::aRefusedInitialPasswordIsAskedForAgainWithWhatWasTyped_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::newRow("another status") << QByteArray("400");
    QTest::newRow("not accepted") << QByteArray("200");
}

void TestPasswordPrompts::aRefusedInitialPasswordIsAskedForAgainWithWhatWasTyped()
{
    QFETCH(const QByteArray, status);
    SenderFixture f(hub());
    f.script.initialized = 0;
    f.script.first = {{InstallStep::Validate, {refusal(status.constData())}}};
    QString found;
    f.answer = [&](HubDialog* dialog, int count) {
        found = count == 2 ? dialog->password() : found;
        submitPassword(dialog, QStringLiteral("Typed%1").arg(count));
    };
    QVERIFY(f.logIn());
    QCOMPARE(found, QStringLiteral("Typed1"));
    QCOMPARE(f.watcher.count(), 3);
    QCOMPARE(f.steps(), QStringLiteral("0 1 2 2 3"));
}

void TestPasswordPrompts::screenReadersAreToldOfARefusedInitialPassword()
{
    SenderFixture f(hub());
    f.script.initialized = 0;
    f.script.first = {{InstallStep::Validate, {refusal("400")}}};
    QList<bool> told;
    f.answer = [&](HubDialog* dialog, int count) {
        told.append(!dialog->accessibleDescription().isEmpty());
        if (count == 3 || count == 4) {
            cancelPrompt(dialog);
        } else {
            submitPassword(dialog, SenderFixture::password());
        }
    };
    // Refused once, then taken; a run of its own starts without a word.
    f.sender->start();
    QVERIFY(f.waitForOutcome());
    f.sender->start();
    QVERIFY(f.waitForOutcome(2));
    QCOMPARE(told, QList<bool>({false, true, false, false}));
    QCOMPARE(f.watcher.count(), 4);
}

void TestPasswordPrompts::aWrongPasswordIsAskedForAgainUntilItIsRight()
{
    SenderFixture f(hub());
    f.script.first = {{InstallStep::Authenticate, {refusal("401"), refusal("403")}}};
    QList<bool> errors;
    QPointer<HubDialog> shown;
    f.answer = [&](HubDialog* dialog, int count) {
        shown = dialog;
        errors.append(isErrorVisible(dialog));
        submitPassword(dialog, QString::number(count));
    };
    QVERIFY(f.logIn());
    QCOMPARE(errors, QList<bool>({false, true, true}));
    shown->show();
    QVERIFY(!isErrorVisible(shown));
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 3 3"));
    QVERIFY(f.peer.requests().last().contains(passwordDigest(QStringLiteral("3")).toUtf8()));
    QCOMPARE(f.outcomes(), QString());
}

void TestPasswordPrompts::theErrorOfAnEarlierRunIsGoneAtTheNext()
{
    SenderFixture f(hub());
    f.script.first = {{InstallStep::Authenticate, {refusal("401")}}};
    bool error = true;
    f.answer = [&](HubDialog* dialog, int count) {
        if (count == 2) {
            QVERIFY(isErrorVisible(dialog));
            cancelPrompt(dialog);
            return;
        }
        error = isErrorVisible(dialog);
        submitPassword(dialog, SenderFixture::password());
    };
    f.sender->start();
    QVERIFY(f.waitForOutcome());
    QVERIFY(f.logIn());
    QCOMPARE(f.watcher.count(), 3);
    QVERIFY(!error);
}

void TestPasswordPrompts::anEmptyPasswordIsHashedLikeAnyOther()
{
    SenderFixture f(hub());
    f.answer = [](HubDialog* dialog, int) { submitPassword(dialog, QString()); };
    QVERIFY(f.logIn());
    QVERIFY(f.peer.requests().last().endsWith(
        R"({"user-id": "admin", "password": "d41d8cd98f00b204e9800998ecf8427e"})"));
}

void TestPasswordPrompts::cancelEndsTheRun()
{
    SenderFixture f(hub());
    const QSignalSpy cancelled(f.sender, SIGNAL(cancelledLogin()));
    f.answer = [](HubDialog* dialog, int) { cancelPrompt(dialog); };
    f.sender->start();
    QVERIFY(f.waitForOutcome());
    QCOMPARE(f.outcomes(), QStringLiteral("0"));
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(f.sender->isLoginCancelled());
    QVERIFY(!f.sender->isLoggedIn());
    QVERIFY(!f.sender->isRunning());
    QVERIFY(!isClockRunning(f.sender));
    f.sender->sendPresets();
    QVERIFY(!f.sender->isRunning());
    QCOMPARE(f.steps(), QStringLiteral("0 1"));
}

void TestPasswordPrompts::cancellingTheInitialPasswordEndsTheRun()
{
    SenderFixture f(hub());
    f.script.initialized = 0;
    f.answer = [](HubDialog* dialog, int) { cancelPrompt(dialog); };
    f.sender->start();
    QVERIFY(f.waitForOutcome());
    QCOMPARE(f.outcomes(), QStringLiteral("0"));
    QVERIFY(f.sender->isLoginCancelled());
    QCOMPARE(f.steps(), QStringLiteral("0 1"));
}

void TestPasswordPrompts::startAfterCancelAsksAgain()
{
    SenderFixture f(hub());
    f.answer = [](HubDialog* dialog, int count) {
        if (count == 1) {
            cancelPrompt(dialog);
        } else {
            submitPassword(dialog, SenderFixture::password());
        }
    };
    f.sender->start();
    QVERIFY(f.waitForOutcome());
    f.sender->start();
    QVERIFY(!f.sender->isLoginCancelled());
    QVERIFY(f.waitForLogIn());
    f.sender->sendPresets();
    QVERIFY(f.waitForOutcome(2));
    QCOMPARE(f.outcomes(), QStringLiteral("0 1"));
}

void TestPasswordPrompts::theDialogNamesTheHubAndIdentifiesIt()
{
    SenderFixture f(hub());
    QStringList texts;
    f.answer = [&](HubDialog* dialog, int) {
        auto* list = dialog->findChild<QTreeWidget*>(QStringLiteral("hubList"));
        texts = {list->topLevelItem(0)->text(0), list->topLevelItem(0)->text(2)};
        QTest::mouseClick(list->itemWidget(list->topLevelItem(0), 1), Qt::LeftButton);
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.logIn());
    QCOMPARE(texts, QStringList({QStringLiteral("Hub A"), hub()}));
    QCOMPARE(f.page->identified, QStringList(hub()));
}

void TestPasswordPrompts::theSameDialogServesEveryPrompt()
{
    SenderFixture f(hub());
    QList<HubDialog*> dialogs;
    f.answer = [&](HubDialog* dialog, int) {
        dialogs.append(dialog);
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.install());
    QVERIFY(f.install(2));
    QCOMPARE(dialogs.size(), 2);
    QCOMPARE(dialogs.first(), dialogs.last());
    QCOMPARE(dialogs.first()->parentWidget(), f.page.get());
}

TESSEL_TEST_MAIN(TestPasswordPrompts)
#include "tst_passwordprompts.moc"
