#include "hubdialog.h"
#include "senderfixture.h"
#include "testcase.h"

#include <QApplication>
#include <QPointer>
#include <QTcpSocket>
#include <QTest>

/// What may happen while a password dialog is open.
class TestOpenPrompts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
    return QStringLiteral("127.21.5.1");
}

QString secondHub()
{
    return QStringLiteral("127.21.5.2");
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

void TestOpenPrompts::timeDoesNotCountWhileADialogIsOpen()
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

void TestOpenPrompts::aHubThatClosesWhileTheDialogIsOpenIsReconnected()
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

void TestOpenPrompts::whatAHubSaysWhileTheDialogIsOpenIsNoAnswer()
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

void TestOpenPrompts::startWhileADialogIsOpenLetsTheRunGoOn()
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

void TestOpenPrompts::sendPresetsWhileADialogIsOpenDoesNothing()
{
    SenderFixture f(hub());
    f.answer = [&](HubDialog* dialog, int) {
        f.sender->sendPresets();
        submitPassword(dialog, SenderFixture::password());
    };
    QVERIFY(f.logIn());
    QCOMPARE(f.steps(), QStringLiteral("0 1 3"));
}

void TestOpenPrompts::thePageMayBeDestroyedWhileADialogIsOpen()
{
    SenderFixture f(hub());
    const QPointer<PresetFileSender> sender = f.sender;
    f.answer = [&](HubDialog*, int) { f.page.reset(); };
    f.sender->start();
    QTRY_VERIFY(!sender);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(f.outcomes(), QString());
}

void TestOpenPrompts::aSenderMayBeDestroyedWhileItsDialogIsOpen()
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

void TestOpenPrompts::twoOpenDialogsAreAnsweredInEitherOrder_data()
{
    QTest::addColumn<bool>("lastFirst");
    QTest::addColumn<bool>("firstIsCancelled");
    QTest::newRow("the upper one first") << true << false;
    QTest::newRow("the lower one first") << false << false;
    QTest::newRow("the upper one first, the lower cancelled") << true << true;
    QTest::newRow("the lower one first and cancelled") << false << true;
}

void TestOpenPrompts::twoOpenDialogsAreAnsweredInEitherOrder()
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

void TestOpenPrompts::thePageMayBeDestroyedWhileTwoDialogsAreOpen()
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

void TestOpenPrompts::otherHubsGoOnWhileADialogIsOpen()
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

TESSEL_TEST_MAIN(TestOpenPrompts)
#include "tst_openprompts.moc"
