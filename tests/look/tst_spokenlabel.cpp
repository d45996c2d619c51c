#include "announcements.h"
#include "spokenlabel.h"
#include "testcase.h"

#include <QTest>

#include <optional>

class TestSpokenLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void isAStatusBarNamedByWhatItSays();
    void saysEachNewTextOnceAndNoneTwice();
    void announcesWhatIsShownNowhere();
    void announcesTheSameWordsAsOftenAsTheyCome();
    void showsWhatWasJustAnnouncedWithoutSayingItAgain();
    void saysWhatItShowsWhenItComesToSight();
    void saysItAgainEachTimeItComesToSight();
    void isNotNamedByWhatWasAnnouncedBeforeItWasHidden();

private:
    std::optional<Announcements> m_announcements;
};

namespace {

const QString one = QStringLiteral("One.");
const QString two = QStringLiteral("Two.");

QString nameOf(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

} // namespace

void TestSpokenLabel::init()
{
    TestCase::init();
    m_announcements.emplace();
    if (!m_announcements->canHear()) {
        QSKIP("This system has no ear for what screen readers are told.");
    }
}

void TestSpokenLabel::cleanup()
{
    m_announcements.reset();
}

void TestSpokenLabel::isAStatusBarNamedByWhatItSays()
{
    SpokenLabel label(nullptr);
    label.show();
    label.say(one);
    QCOMPARE(QAccessible::queryAccessibleInterface(&label)->role(), QAccessible::StatusBar);
    QCOMPARE(nameOf(label), one);
    label.say(QString());
    QCOMPARE(nameOf(label), QString());
}

void TestSpokenLabel::saysEachNewTextOnceAndNoneTwice()
{
    SpokenLabel label(nullptr);
    label.show();
    label.say(one);
    QCOMPARE(Announcements::takeSaid(), QStringList{one});
    label.say(one);
    QCOMPARE(Announcements::takeSaid(), QStringList());
    label.say(one + u' ' + two);
    QCOMPARE(Announcements::takeSaid(), QStringList{one + u' ' + two});
    label.say(two);
    QCOMPARE(Announcements::takeSaid(), QStringList{two});
    label.say(QString());
    QCOMPARE(Announcements::takeSaid(), QStringList());
    label.say(two);
    QCOMPARE(Announcements::takeSaid(), QStringList{two});
    QCOMPARE(label.text(), two);
}

void TestSpokenLabel::announcesWhatIsShownNowhere()
{
    SpokenLabel label(nullptr);
    label.show();
    label.announce(one);
    QCOMPARE(Announcements::takeSaid(), QStringList{one});
    QCOMPARE(nameOf(label), one);
    QCOMPARE(label.text(), QString());
}

void TestSpokenLabel::announcesTheSameWordsAsOftenAsTheyCome()
{
    SpokenLabel label(nullptr);
    label.show();
    label.announce(one);
    label.announce(one);
    QCOMPARE(Announcements::takeSaid(), QStringList({one, one}));
    // Between them the name was another, or a reader would take no notice of the second.
    QCOMPARE(Announcements::count(&label, QAccessible::NameChanged), 3);
}

void TestSpokenLabel::showsWhatWasJustAnnouncedWithoutSayingItAgain()
{
    SpokenLabel label(nullptr);
    label.show();
    label.announce(one + u' ' + two);
    QCOMPARE(Announcements::takeSaid(), QStringList{one + u' ' + two});
    label.say(two);
    QCOMPARE(Announcements::takeSaid(), QStringList());
    QCOMPARE(label.text(), two);
}

void TestSpokenLabel::saysWhatItShowsWhenItComesToSight()
{
    SpokenLabel label(nullptr);
    label.say(one);
    label.say(two);
    label.announce(one);
    QCOMPARE(Announcements::takeSaid(), QStringList());
    label.show();
    QCOMPARE(Announcements::takeSaid(), QStringList{two});
}

void TestSpokenLabel::saysItAgainEachTimeItComesToSight()
{
    SpokenLabel label(nullptr);
    label.show();
    label.say(one);
    Announcements::takeSaid();
    Announcements::count(&label, QAccessible::NameChanged);
    label.hide();
    QCOMPARE(Announcements::takeSaid(), QStringList());
    label.show();
    QCOMPARE(Announcements::takeSaid(), QStringList{one});
    // Between them the name was another, or a reader would take no notice.
    QCOMPARE(Announcements::count(&label, QAccessible::NameChanged), 2);
    QCOMPARE(label.text(), one);
}

void TestSpokenLabel::isNotNamedByWhatWasAnnouncedBeforeItWasHidden()
{
    SpokenLabel label(nullptr);
    label.show();
    label.announce(one);
    Announcements::takeSaid();
    label.hide();
    label.show();
    QCOMPARE(nameOf(label), QString());
    QCOMPARE(Announcements::takeSaid(), QStringList());
}

TESSEL_TEST_MAIN(TestSpokenLabel)
#include "tst_spokenlabel.moc"
