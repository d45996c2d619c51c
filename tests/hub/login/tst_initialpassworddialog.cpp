#include "announcements.h"
#include "initialpassworddialog.h"
#include "testcase.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

class TestInitialPasswordDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToTypeInAWindowOfFixedHeight();
    void theHubStandsInTheListAndCanBeIdentified();
    void submitNeedsTwoEqualTextsOfFourCharacters_data();
    void submitNeedsTwoEqualTextsOfFourCharacters();
    void submitIsDisabledAgainWhenOneTextChanges();
    void otherCharactersAreRefusedByTheFirstFieldOnly();
    void aSeventeenthCharacterIsRefusedByTheFirstFieldOnly();
    void theDefaultButtonFollowsSubmit();
    void submitAccepts();
    void returnGoesToTheOtherFieldUntilBothAreComplete_data();
    void returnGoesToTheOtherFieldUntilBothAreComplete();
    void returnInTheListGoesToThePasswordField();
    void returnPressesTheButtonThatHasTheFocus();
    void escapeCancels();
    void screenReadersAreToldWhichHubItIsFor();
    void screenReadersAreToldWhatIsMissing_data();
    void screenReadersAreToldWhatIsMissing();
    void screenReadersAreToldOfEachChange();
    void screenReadersAreToldOfARefusal();
    void anotherPasswordIsNotSaidToBeRefused();
    void theNextPromptDoesNotRememberHowTheTextsWereTyped();
    void nothingIsCutOff();
    void labelsAndTabOrderFollowReading();
};

namespace {

/// The dialog over a page of its own, with its parts.
struct Fixture
{
    QWidget page;
    InitialPasswordDialog dialog{&page, QStringLiteral("10.0.0.7"), QStringLiteral("Hub A")};
    QLineEdit* password = dialog.findChild<QLineEdit*>(QStringLiteral("passwordEdit"));
    QLineEdit* confirmation = dialog.findChild<QLineEdit*>(QStringLiteral("confirmationEdit"));
    QPushButton* submit = dialog.findChild<QPushButton*>(QStringLiteral("submitButton"));
    QPushButton* cancel = dialog.findChild<QPushButton*>(QStringLiteral("cancelButton"));
    QTreeWidget* list = dialog.findChild<QTreeWidget*>(QStringLiteral("hubList"));

    const QLabel* label(const char* text) const
    {
        for (const auto* label : dialog.findChildren<QLabel*>()) {
            if (label->text() == QLatin1String(text)) {
                return label;
            }
        }
        return nullptr;
    }
};

} // namespace

void TestInitialPasswordDialog::saysWhatToTypeInAWindowOfFixedHeight()
{
    const Fixture f;
    QCOMPARE(f.dialog.windowTitle(), QStringLiteral("Login"));
    QCOMPARE(f.dialog.minimumSize(), QSize(450, 250));
    QCOMPARE(f.dialog.maximumSize(), QSize(1200, 250));
    QVERIFY(f.label("PX-HB Device Manager"));
    QCOMPARE(f.label("PX-HB Device Manager")->font().pointSize(), 16);
    QVERIFY(f.label("Please set an initial password."));
    QCOMPARE(f.label("Please set an initial password.")->styleSheet(),
             QStringLiteral("color: rgb(255, 0, 0);"));
    QVERIFY(f.label("Device Manager Account"));
    QCOMPARE(f.password->echoMode(), QLineEdit::Password);
    QCOMPARE(f.password->placeholderText(), QStringLiteral("Password"));
    QCOMPARE(f.confirmation->echoMode(), QLineEdit::Password);
    QCOMPARE(f.confirmation->placeholderText(), QStringLiteral("Please enter password again."));
    QCOMPARE(f.cancel->text(), QStringLiteral("Cancel"));
    QCOMPARE(f.submit->text(), QStringLiteral("Submit"));
    QVERIFY(!f.submit->isEnabled());
    QCOMPARE(f.dialog.focusWidget(), f.password);
}

void TestInitialPasswordDialog::theHubStandsInTheListAndCanBeIdentified()
{
    Fixture f;
    QCOMPARE(f.list->topLevelItem(0)->text(0), QStringLiteral("Hub A"));
    QCOMPARE(f.list->topLevelItem(0)->text(2), QStringLiteral("10.0.0.7"));
    f.dialog.show();
    const QSignalSpy spy(&f.dialog, SIGNAL(identifyButtonClicked(QString)));
    QTest::mouseClick(f.list->itemWidget(f.list->topLevelItem(0), 1), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toString(), QStringLiteral("10.0.0.7"));
}

void TestInitialPasswordDialog::submitNeedsTwoEqualTextsOfFourCharacters_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("confirmation");
    QTest::addColumn<bool>("enabled");
    const auto row = [](const char* name, const char* password, const char* confirmation,
                        bool enabled) {
        QTest::newRow(name) << QString::fromLatin1(password) << QString::fromLatin1(confirmation)
                            << enabled;
    };
    row("abc twice has fewer than 4 characters", "abc", "abc", false);
    row("abcd twice", "abcd", "abcd", true);
    row("abcd and abce differ", "abcd", "abce", false);
    row("the case counts", "abcd", "abcD", false);
    row("16 characters", "0123456789ABCDEF", "0123456789ABCDEF", true);
    row("nothing", "", "", false);
    row("no confirmation", "abcd", "", false);
    row("no password", "", "abcd", false);
}

void TestInitialPasswordDialog::submitNeedsTwoEqualTextsOfFourCharacters()
{
    QFETCH(const QString, password);
    QFETCH(const QString, confirmation);
    const Fixture f;
    QTest::keyClicks(f.password, password);
    QTest::keyClicks(f.confirmation, confirmation);
    QTEST(f.submit->isEnabled(), "enabled");
}

void TestInitialPasswordDialog::submitIsDisabledAgainWhenOneTextChanges()
{
    const Fixture f;
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    QTest::keyClicks(f.password, QStringLiteral("abcd"));
    QVERIFY(f.submit->isEnabled());
    QTest::keyClicks(f.password, QStringLiteral("e"));
    QVERIFY(!f.submit->isEnabled());
    QTest::keyClicks(f.confirmation, QStringLiteral("e"));
    QVERIFY(f.submit->isEnabled());
}

void TestInitialPasswordDialog::otherCharactersAreRefusedByTheFirstFieldOnly()
{
    const Fixture f;
    const QString typed = QStringLiteral("ab-c d_1!");
    QTest::keyClicks(f.password, typed);
    QCOMPARE(f.password->text(), QStringLiteral("abcd1"));
    QTest::keyClicks(f.confirmation, typed);
    QCOMPARE(f.confirmation->text(), typed);
    QVERIFY(!f.submit->isEnabled());
}

void TestInitialPasswordDialog::aSeventeenthCharacterIsRefusedByTheFirstFieldOnly()
{
    const Fixture f;
    const QString typed = QStringLiteral("0123456789ABCDEFG");
    QTest::keyClicks(f.password, typed);
    QCOMPARE(f.password->text(), QStringLiteral("0123456789ABCDEF"));
    QTest::keyClicks(f.confirmation, typed);
    QCOMPARE(f.confirmation->text(), typed);
    QVERIFY(!f.submit->isEnabled());
}

void TestInitialPasswordDialog::theDefaultButtonFollowsSubmit()
{
    const Fixture f;
    QVERIFY(f.cancel->isDefault() && !f.submit->isDefault());
    QTest::keyClicks(f.password, QStringLiteral("abcd"));
    QVERIFY(f.cancel->isDefault() && !f.submit->isDefault());
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    QVERIFY(f.submit->isDefault() && !f.cancel->isDefault());
    QTest::keyClick(f.confirmation, Qt::Key_Backspace);
    QVERIFY(f.cancel->isDefault() && !f.submit->isDefault());
}

void TestInitialPasswordDialog::submitAccepts()
{
    Fixture f;
    f.dialog.show();
    QTest::keyClicks(f.password, QStringLiteral("abcd"));
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    QTest::mouseClick(f.submit, Qt::LeftButton);
    QCOMPARE(f.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(f.dialog.password(), QStringLiteral("abcd"));
}

void TestInitialPasswordDialog::returnGoesToTheOtherFieldUntilBothAreComplete_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void TestInitialPasswordDialog::returnGoesToTheOtherFieldUntilBothAreComplete()
{
    QFETCH(const Qt::Key, key);
    Fixture f;
    const QSignalSpy finished(&f.dialog, SIGNAL(finished(int)));
    f.dialog.show();
    QTest::keyClick(f.password, key);
    QCOMPARE(f.dialog.focusWidget(), f.confirmation);
    QTest::keyClick(f.confirmation, key);
    QCOMPARE(f.dialog.focusWidget(), f.password);
    QTest::keyClicks(f.password, QStringLiteral("abcd"));
    QTest::keyClick(f.password, key);
    QCOMPARE(f.dialog.focusWidget(), f.confirmation);
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    QCOMPARE(finished.count(), 0);
    QTest::keyClick(f.confirmation, key);
    QCOMPARE(f.dialog.result(), int(QDialog::Accepted));
}

void TestInitialPasswordDialog::returnInTheListGoesToThePasswordField()
{
    Fixture f;
    f.dialog.show();
    f.list->setFocus();
    QTest::keyClick(f.list, Qt::Key_Return);
    QCOMPARE(f.dialog.focusWidget(), f.password);
    QVERIFY(f.dialog.isVisible());
}

void TestInitialPasswordDialog::returnPressesTheButtonThatHasTheFocus()
{
    Fixture f;
    f.dialog.show();
    const QSignalSpy identified(&f.dialog, SIGNAL(identifyButtonClicked(QString)));
    QWidget* lamp = f.list->itemWidget(f.list->topLevelItem(0), 1);
    lamp->setFocus();
    QTest::keyClick(lamp, Qt::Key_Return);
    QCOMPARE(identified.count(), 1);
    QVERIFY(f.dialog.isVisible());

    QTest::keyClicks(f.password, QStringLiteral("abcd"));
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    f.cancel->setFocus();
    QTest::keyClick(f.cancel, Qt::Key_Return);
    QVERIFY(!f.dialog.isVisible());
    QCOMPARE(f.dialog.result(), int(QDialog::Rejected));
}

void TestInitialPasswordDialog::escapeCancels()
{
    Fixture f;
    const QSignalSpy rejected(&f.dialog, SIGNAL(rejected()));
    f.dialog.show();
    QTest::keyClick(f.password, Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
}

void TestInitialPasswordDialog::screenReadersAreToldWhichHubItIsFor()
{
    Fixture f;
    QCOMPARE(f.dialog.accessibleName(), QStringLiteral("Login to Hub A at 10.0.0.7"));
    for (const QLineEdit* field : {f.password, f.confirmation}) {
        QVERIFY(
            field->accessibleDescription().startsWith(QStringLiteral("For Hub A at 10.0.0.7.")));
    }
    f.dialog.setHostName(QStringLiteral("Hub B"));
    QCOMPARE(f.dialog.accessibleName(), QStringLiteral("Login to Hub B at 10.0.0.7"));
    for (const QLineEdit* field : {f.password, f.confirmation}) {
        QVERIFY(
            field->accessibleDescription().startsWith(QStringLiteral("For Hub B at 10.0.0.7.")));
    }
}

void TestInitialPasswordDialog::screenReadersAreToldWhatIsMissing_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("confirmation");
    QTest::addColumn<QString>("ofPassword");
    QTest::addColumn<QString>("ofConfirmation");
    const QString tooShort = QStringLiteral(" Too short: 4 to 16 letters and digits are needed.");
    const QString missing = QStringLiteral(" Still missing.");
    const QString unequal = QStringLiteral(" The two passwords are not equal.");
    const auto text = [](const char* typed) { return QString::fromLatin1(typed); };
    QTest::newRow("nothing typed") << QString() << QString() << tooShort << missing;
    QTest::newRow("too short") << text("abc") << text("abc") << tooShort << QString();
    QTest::newRow("not repeated") << text("abcd") << QString() << QString() << missing;
    QTest::newRow("not equal") << text("abcd") << text("abce") << QString() << unequal;
    QTest::newRow("complete") << text("abcd") << text("abcd") << QString() << QString();
}

void TestInitialPasswordDialog::screenReadersAreToldWhatIsMissing()
{
    QFETCH(const QString, ofPassword);
    QFETCH(const QString, ofConfirmation);
    QFETCH(const QString, password);
    QFETCH(const QString, confirmation);
    const Fixture f;
    QTest::keyClicks(f.password, password);
    QTest::keyClicks(f.confirmation, confirmation);
    const QString hub = QStringLiteral("For Hub A at 10.0.0.7.");
    QCOMPARE(f.password->accessibleDescription(), hub + ofPassword);
    QCOMPARE(f.confirmation->accessibleDescription(), hub + ofConfirmation);
}

void TestInitialPasswordDialog::screenReadersAreToldOfEachChange()
{
    const Fixture f;
    const Announcements announcements;
    if (!announcements.canHear()) {
        QSKIP("This system has no ear for what screen readers are told.");
    }
    QTest::keyClicks(f.password, QStringLiteral("abc"));
    QCOMPARE(Announcements::count(f.password, QAccessible::DescriptionChanged), 0);
    QTest::keyClicks(f.password, QStringLiteral("d"));
    QCOMPARE(Announcements::count(f.password, QAccessible::DescriptionChanged), 1);
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    // First not equal, in the end equal.
    QCOMPARE(Announcements::count(f.confirmation, QAccessible::DescriptionChanged), 2);
}

void TestInitialPasswordDialog::anotherPasswordIsNotSaidToBeRefused()
{
    Fixture f;
    f.password->setText(QStringLiteral("refused1"));
    f.dialog.setRefused(true);
    f.dialog.show(); // which sets the fields anew
    QVERIFY(f.password->accessibleDescription().contains(QLatin1String("did not take")));
    QTest::keyClick(f.password, Qt::Key_2);
    QVERIFY(!f.password->accessibleDescription().contains(QLatin1String("did not take")));
    QCOMPARE(f.dialog.accessibleDescription(), QString());
}

void TestInitialPasswordDialog::screenReadersAreToldOfARefusal()
{
    Fixture f;
    const QString refusal = QStringLiteral("The hub did not take this password. Please try again.");
    QTest::keyClicks(f.password, QStringLiteral("abcd"));
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    const Announcements announcements;
    if (!announcements.canHear()) {
        QSKIP("This system has no ear for what screen readers are told.");
    }
    f.dialog.setRefused(true);
    QCOMPARE(f.dialog.accessibleDescription(), refusal);
    QVERIFY(f.password->accessibleDescription().endsWith(refusal));
    QCOMPARE(Announcements::count(f.password, QAccessible::DescriptionChanged), 1);
    f.dialog.show();
    QCOMPARE(Announcements::count(&f.dialog, QAccessible::Alert), 1);
    f.dialog.hide();
    f.dialog.setRefused(false);
    QVERIFY(!f.password->accessibleDescription().contains(refusal));
    f.dialog.show();
    QCOMPARE(Announcements::count(&f.dialog, QAccessible::Alert), 0);
}

void TestInitialPasswordDialog::theNextPromptDoesNotRememberHowTheTextsWereTyped()
{
    Fixture f;
    f.dialog.show();
    QTest::keyClicks(f.password, QStringLiteral("abcd"));
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    f.dialog.accept();
    f.dialog.show();
    for (QLineEdit* field : {f.password, f.confirmation}) {
        QCOMPARE(field->text(), QStringLiteral("abcd"));
        // What was typed can be taken back in a readable field only.
        field->setEchoMode(QLineEdit::Normal);
        QVERIFY(!field->isUndoAvailable());
    }
}

void TestInitialPasswordDialog::nothingIsCutOff()
{
    Fixture f;
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.dialog));
    QCOMPARE(f.dialog.height(), 250);
    for (const auto* label : f.dialog.findChildren<QLabel*>()) {
        QVERIFY2(label->height() >= label->sizeHint().height() &&
                     label->width() >= label->sizeHint().width(),
                 qPrintable(label->text()));
    }
    QVERIFY(f.submit->height() >= f.submit->sizeHint().height());
    QVERIFY(f.list->viewport()->rect().contains(f.list->visualItemRect(f.list->topLevelItem(0))));
}

void TestInitialPasswordDialog::labelsAndTabOrderFollowReading()
{
    Fixture f;
    f.dialog.show();
    QCOMPARE(f.label("Device Manager Account")->buddy(), f.password);
    QVERIFY(!f.confirmation->accessibleName().isEmpty());
    QTest::keyClicks(f.password, QStringLiteral("abcd"));
    QTest::keyClicks(f.confirmation, QStringLiteral("abcd"));
    f.list->setFocus();
    for (QWidget* widget : QList<QWidget*>{f.list->itemWidget(f.list->topLevelItem(0), 1),
                                           f.password, f.confirmation, f.cancel, f.submit}) {
        QTest::keyClick(f.dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(f.dialog.focusWidget(), widget);
    }
}

TESSEL_TEST_MAIN(TestInitialPasswordDialog)
#include "tst_initialpassworddialog.moc"
