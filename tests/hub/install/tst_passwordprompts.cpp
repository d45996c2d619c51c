#include "httprequest.h"
#include "hubdialog.h"
#include "senderfixture.h"
#include "testcase.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTcpSocket>
#include <QTest>
#include <QTreeWidget>

/// The dialogs of a sender: which one comes up when, and what may happen while one is open.
class TestPasswordPrompts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anInitialisedHubIsAskedForItsPasswordOnly();
    void aNewHubGetsAPasswordBeforeTheLogIn();
    void aRefusedInitialPasswordIsAskedForAgainWithWhatWasTyped_data();
    void aRefusedInitialPasswordIsAskedForAgainWithWhatWasTyped();
    void aWrongPasswordIsAskedForAgainUntilItIsRight();
    void theErrorOfAnEarlierRunIsGoneAtTheNext();
    void anEmptyPasswordIsHashedLikeAnyOther();
    void cancelEndsTheRun();
    void cancellingTheInitialPasswordEndsTheRun();
    void startAfterCancelAsksAgain();
    void theDialogNamesTheHubAndIdentifiesIt();
    void theSameDialogServesEveryPrompt();

    void timeDoesNotCountWhileADialogIsOpen();
    void aHubThatClosesWhileTheDialogIsOpenIsReconnected();
    void whatAHubSaysWhileTheDialogIsOpenIsNoAnswer();
    void startWhileADialogIsOpenLetsTheRunGoOn();
    void sendPresetsWhileADialogIsOpenDoesNothing();
    void thePageMayBeDestroyedWhileADialogIsOpen();
    void aSenderMayBeDestroyedWhileItsDialogIsOpen();

    void twoOpenDialogsAreAnsweredInEitherOrder_data();
    void twoOpenDialogsAreAnsweredInEitherOrder();
    void thePageMayBeDestroyedWhileTwoDialogsAreOpen();
    void otherHubsGoOnWhileADialogIsOpen();
};

namespace {

QString hub()
{
    return QStringLiteral("127.21.2.1");
}

QString secondHub()
{
    return QStringLiteral("127.21.2.2");
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

/// Two senders on one page, each with its hub.
struct TwoHubs
{
    SenderFixture first{hub()};
    SenderFixture second{secondHub()};
    QList<HubDialog*> open;

    /// Both dialogs are collected and stay open until `whenBothAreOpen` is called with them.
    explicit TwoHubs(const std::function<void()>& whenBothAreOpen)
    {
        const auto collect = [this, whenBothAreOpen](HubDialog* dialog, int) {
            if (!open.contains(dialog)) {
                open.append(dialog);
            }
            if (open.size() == 2) {
                whenBothAreOpen();
            }
        };
        // Each watcher sees the dialogs of both hubs.
        first.answer = collect;
        second.answer = [](HubDialog*, int) {};
    }

    bool waitForOutcomes() { return first.waitForOutcome() && second.waitForOutcome(); }
};

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

void TestPasswordPrompts::timeDoesNotCountWhileADialogIsOpen()
{
    SenderFixture f(hub());
    f.script.initialized = 0;
    f.answer = [&](HubDialog* dialog, int) {
        passSeconds(f.sender, 100);
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.logIn());
    QCOMPARE(f.watcher.count(), 2);
    QCOMPARE(f.outcomes(), QString());
}

void TestPasswordPrompts::aHubThatClosesWhileTheDialogIsOpenIsReconnected()
{
    SenderFixture f(hub());
    f.answer = [&](HubDialog* dialog, int) {
        auto* socket = f.sender->findChild<QTcpSocket*>();
        QSignalSpy closed(socket, SIGNAL(disconnected()));
        f.peer.closeConnection();
        QVERIFY(closed.wait());
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.install());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.peer.connectionCount(), 2);
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 6 7 8 6 7 9 10"));
}

void TestPasswordPrompts::whatAHubSaysWhileTheDialogIsOpenIsNoAnswer()
{
    SenderFixture f(hub());
    const QByteArray unasked = httpReply("500", "{}");
    const QByteArray begun = "HTTP/1.1 500 Error\r\nContent-Le";
    f.answer = [&](HubDialog* dialog, int) {
        f.peer.sendUnasked(unasked);
        f.peer.sendUnasked(begun);
        QTest::qWait(1);
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.install());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.watcher.count(), 1);
}

void TestPasswordPrompts::startWhileADialogIsOpenLetsTheRunGoOn()
{
    SenderFixture f(hub());
    f.answer = [&](HubDialog* dialog, int) {
        f.sender->start();
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.install());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.watcher.count(), 1);
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 6 7 8 6 7 9 10"));
}

void TestPasswordPrompts::sendPresetsWhileADialogIsOpenDoesNothing()
{
    SenderFixture f(hub());
    f.answer = [&](HubDialog* dialog, int) {
        f.sender->sendPresets();
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.logIn());
    QCOMPARE(f.steps(), QStringLiteral("0 1 3"));
}

void TestPasswordPrompts::thePageMayBeDestroyedWhileADialogIsOpen()
{
    SenderFixture f(hub());
    const QPointer<PresetFileSender> sender = f.sender;
    f.answer = [&](HubDialog*, int) { f.page.reset(); };
    f.sender->start();
    QTRY_VERIFY(!sender);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(f.outcomes(), QString());
}

void TestPasswordPrompts::aSenderMayBeDestroyedWhileItsDialogIsOpen()
{
    SenderFixture f(hub());
    const QPointer<PresetFileSender> sender = f.sender;
    QPointer<HubDialog> shown;
    f.answer = [&](HubDialog* dialog, int) {
        shown = dialog;
        delete sender.data();
    };
    f.sender->start();
    QTRY_VERIFY(!sender);
    QVERIFY(!shown);
    QVERIFY(f.page);
}

void TestPasswordPrompts::twoOpenDialogsAreAnsweredInEitherOrder_data()
{
    QTest::addColumn<bool>("lastFirst");
    QTest::addColumn<bool>("firstIsCancelled");
    QTest::newRow("the upper one first") << true << false;
    QTest::newRow("the lower one first") << false << false;
    QTest::newRow("the upper one first, the lower cancelled") << true << true;
    QTest::newRow("the lower one first and cancelled") << false << true;
}

void TestPasswordPrompts::twoOpenDialogsAreAnsweredInEitherOrder()
{
    QFETCH(const bool, lastFirst);
    QFETCH(const bool, firstIsCancelled);
    QList<HubDialog*>* open = nullptr;
    PresetFileSender* lower = nullptr;
    TwoHubs hubs([&] {
        HubDialog* lowerDialog = open->first();
        const auto answerLower = [=] {
            if (firstIsCancelled) {
                lowerDialog->reject();
            } else {
                lowerDialog->accept();
            }
        };
        if (!lastFirst) {
            answerLower();
            passSeconds(lower, 100);
        }
        submitPassword(open->last(), SenderFixture::password());
        if (lastFirst) {
            answerLower();
        }
    });
    open = &hubs.open;
    lower = hubs.first.sender;
    for (SenderFixture* f : {&hubs.first, &hubs.second}) {
        connect(f->sender, SIGNAL(completedLogin()), f->page.get(), SLOT(senderLogin()));
    }
    hubs.first.sender->start();
    hubs.second.sender->start();
    QVERIFY(hubs.waitForOutcomes());
    const bool firstHubIsLower = hubs.open.first()->parentWidget() == hubs.first.page.get();
    const SenderFixture& lowerHub = firstHubIsLower ? hubs.first : hubs.second;
    const SenderFixture& upperHub = firstHubIsLower ? hubs.second : hubs.first;
    QCOMPARE(lowerHub.outcomes(), firstIsCancelled ? QStringLiteral("0") : QStringLiteral("1"));
    QCOMPARE(upperHub.outcomes(), QStringLiteral("1"));
}

void TestPasswordPrompts::thePageMayBeDestroyedWhileTwoDialogsAreOpen()
{
    SenderFixture f(hub());
    const ScriptedPeer peer(secondHub(), [&](const QByteArray& request, qsizetype number) {
        return f.script(request, number);
    });
    const QPointer<PresetFileSender> first = f.sender;
    const QPointer<PresetFileSender> second =
        new PresetFileSender(secondHub(), QStringLiteral("Hub B"), &f.doc, f.page.get());
    f.answer = [&](HubDialog*, int count) {
        if (count == 2) {
            f.page.reset();
        }
    };
    first->start();
    second->start();
    QTRY_VERIFY(!first && !second);
    QCOMPARE(f.watcher.count(), 2);
    QVERIFY(!QApplication::activeModalWidget());
}

void TestPasswordPrompts::otherHubsGoOnWhileADialogIsOpen()
{
    SenderFixture f(hub());
    QVERIFY(f.logIn());
    SenderFixture other(secondHub());
    f.answer = [](HubDialog*, int) {};
    other.answer = [&](HubDialog* dialog, int) {
        f.sender->sendPresets();
        QVERIFY(f.waitForOutcome());
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(other.install());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(other.outcomes(), QStringLiteral("1"));
}

TESSEL_TEST_MAIN(TestPasswordPrompts)
#include "tst_passwordprompts.moc"
