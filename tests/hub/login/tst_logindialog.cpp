#include "announcements.h"
#include "logindialog.h"
#include "testcase.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

class TestLoginDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToTypeInAWindowOfFixedHeight();
    void theHubStandsInTheList();
    void theIdentifyButtonNamesTheHub();
    void theErrorIsHiddenUntilShown();
    void nothingIsCutOffWithTheErrorShown();
    void theDefaultButtonFollowsTheText();
    void anEmptyPasswordCanBeSubmitted();
    void enterLogsInOnceATextIsTyped();
    void cancelRejects();
    void typedTextStaysForTheNextPrompt();
    void everyPromptBeginsInThePasswordField();
    void theNextPromptDoesNotRememberHowTheTextWasTyped();
    void labelsAndTabOrderFollowReading();
    void returnPressesTheButtonThatHasTheFocus();
    void theNameOfTheHubIsInSight();
    void screenReadersAreToldWhichHubItIsFor();
    void screenReadersAreToldOfARefusal();
};

namespace {

LoginDialog* newDialog(QWidget* parent)
{
    return new LoginDialog(parent, QStringLiteral("10.0.0.7"), QStringLiteral("Hub A"));
}

template <typename Widget>
Widget* find(const QWidget& dialog, const char* name)
{
    return dialog.findChild<Widget*>(QString::fromLatin1(name));
}

} // namespace

void TestLoginDialog::saysWhatToTypeInAWindowOfFixedHeight()
{
    QWidget page;
    const auto* dialog = newDialog(&page);
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Login"));
    QCOMPARE(dialog->minimumSize(), QSize(450, 220));
    QCOMPARE(dialog->maximumSize(), QSize(1200, 220));
    const auto* title = find<QLabel>(*dialog, "titleLabel");
    QCOMPARE(title->text(), QStringLiteral("PX-HB Device Manager"));
    QCOMPARE(title->font().pointSize(), 16);
    QCOMPARE(int(title->font().weight()), 700);
    const auto* error = find<QLabel>(*dialog, "errorLabel");
    QCOMPARE(error->text(),
             QStringLiteral("The password you entered is incorrect. Please try again."));
    QCOMPARE(error->styleSheet(),
             QStringLiteral("color: rgb(255, 255, 255);\nbackground-color: rgb(255, 0, 0);"));
    const auto* password = find<QLineEdit>(*dialog, "passwordEdit");
    QCOMPARE(password->echoMode(), QLineEdit::Password);
    QCOMPARE(password->placeholderText(), QStringLiteral("Password"));
    QCOMPARE(find<QPushButton>(*dialog, "cancelButton")->text(), QStringLiteral("Cancel"));
    QCOMPARE(find<QPushButton>(*dialog, "loginButton")->text(), QStringLiteral("Login"));
}

void TestLoginDialog::theHubStandsInTheList()
{
    QWidget page;
    const auto* list = find<QTreeWidget>(*newDialog(&page), "hubList");
    QCOMPARE(list->headerItem()->text(0), QStringLiteral("Hostname"));
    QCOMPARE(list->headerItem()->text(1), QString());
    QCOMPARE(list->headerItem()->text(2), QStringLiteral("IP Address"));
    QCOMPARE(list->columnWidth(0), 250);
    QVERIFY(!list->rootIsDecorated());
    QCOMPARE(list->topLevelItemCount(), 1);
    QCOMPARE(list->topLevelItem(0)->text(0), QStringLiteral("Hub A"));
    QCOMPARE(list->topLevelItem(0)->text(2), QStringLiteral("10.0.0.7"));
}

void TestLoginDialog::theIdentifyButtonNamesTheHub()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->show();
    const QSignalSpy spy(dialog, SIGNAL(identifyButtonClicked(QString)));
    const auto* list = find<QTreeWidget>(*dialog, "hubList");
    QTest::mouseClick(list->itemWidget(list->topLevelItem(0), 1), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toString(), QStringLiteral("10.0.0.7"));
}

void TestLoginDialog::theErrorIsHiddenUntilShown()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->show();
    const auto* error = find<QLabel>(*dialog, "errorLabel");
    QVERIFY(!error->isVisible());
    dialog->setErrorVisible(true);
    QVERIFY(error->isVisible());
    dialog->hide();
    dialog->show();
    QVERIFY(error->isVisible());
    dialog->setErrorVisible(false);
    QVERIFY(!error->isVisible());
}

void TestLoginDialog::nothingIsCutOffWithTheErrorShown()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->setErrorVisible(true);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QCOMPARE(dialog->height(), 220);
    for (const auto* label : dialog->findChildren<QLabel*>()) {
        QVERIFY2(label->height() >= label->sizeHint().height() &&
                     label->width() >= label->sizeHint().width(),
                 qPrintable(label->text()));
    }
    for (const auto* button : dialog->findChildren<QPushButton*>()) {
        QVERIFY(button->height() >= button->sizeHint().height());
    }
    const auto* list = find<QTreeWidget>(*dialog, "hubList");
    const QRect row = list->visualItemRect(list->topLevelItem(0));
    QVERIFY(list->viewport()->rect().contains(row));
}

void TestLoginDialog::theDefaultButtonFollowsTheText()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    auto* password = find<QLineEdit>(*dialog, "passwordEdit");
    const auto* login = find<QPushButton>(*dialog, "loginButton");
    const auto* cancel = find<QPushButton>(*dialog, "cancelButton");
    QVERIFY(cancel->isDefault() && !login->isDefault());
    QTest::keyClicks(password, QStringLiteral("a"));
    QVERIFY(login->isDefault() && !cancel->isDefault());
    QTest::keyClick(password, Qt::Key_Backspace);
    QVERIFY(cancel->isDefault() && !login->isDefault());
    QVERIFY(login->isEnabled());
}

void TestLoginDialog::anEmptyPasswordCanBeSubmitted()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->show();
    QTest::mouseClick(find<QPushButton>(*dialog, "loginButton"), Qt::LeftButton);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->password(), QString());
}

void TestLoginDialog::enterLogsInOnceATextIsTyped()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->show();
    auto* password = find<QLineEdit>(*dialog, "passwordEdit");
    QTest::keyClicks(password, QStringLiteral("secret"));
    QTest::keyClick(password, Qt::Key_Return);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->password(), QStringLiteral("secret"));
}

void TestLoginDialog::cancelRejects()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    const QSignalSpy spy(dialog, SIGNAL(rejected()));
    dialog->show();
    QTest::mouseClick(find<QPushButton>(*dialog, "cancelButton"), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!dialog->isVisible());
}

void TestLoginDialog::typedTextStaysForTheNextPrompt()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->show();
    QTest::keyClicks(find<QLineEdit>(*dialog, "passwordEdit"), QStringLiteral("secret"));
    dialog->accept();
    dialog->show();
    QCOMPARE(dialog->password(), QStringLiteral("secret"));
}

void TestLoginDialog::everyPromptBeginsInThePasswordField()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    const auto* password = find<QLineEdit>(*dialog, "passwordEdit");
    QCOMPARE(dialog->focusWidget(), password);
    dialog->show();
    find<QPushButton>(*dialog, "loginButton")->setFocus();
    dialog->accept();
    dialog->show();
    QCOMPARE(dialog->focusWidget(), password);
}

void TestLoginDialog::theNextPromptDoesNotRememberHowTheTextWasTyped()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    auto* password = find<QLineEdit>(*dialog, "passwordEdit");
    dialog->show();
    QTest::keyClicks(password, QStringLiteral("first"));
    dialog->accept();
    dialog->show();
    QCOMPARE(password->text(), QStringLiteral("first"));
    // What was typed can be taken back in a readable field only.
    password->setEchoMode(QLineEdit::Normal);
    QVERIFY(!password->isUndoAvailable());
}

void TestLoginDialog::labelsAndTabOrderFollowReading()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->show();
    auto* list = find<QTreeWidget>(*dialog, "hubList");
    auto* password = find<QLineEdit>(*dialog, "passwordEdit");
    bool labelled = false;
    for (const auto* label : dialog->findChildren<QLabel*>()) {
        labelled =
            labelled || (label->text() == QLatin1String("Login:") && label->buddy() == password);
    }
    QVERIFY(labelled);
    const QList<QWidget*> expected{list->itemWidget(list->topLevelItem(0), 1), password,
                                   find<QPushButton>(*dialog, "cancelButton"),
                                   find<QPushButton>(*dialog, "loginButton")};
    list->setFocus();
    for (QWidget* widget : expected) {
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog->focusWidget(), widget);
    }
}

void TestLoginDialog::returnPressesTheButtonThatHasTheFocus()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->show();
    const auto* list = find<QTreeWidget>(*dialog, "hubList");
    const QSignalSpy identified(dialog, SIGNAL(identifyButtonClicked(QString)));
    QWidget* lamp = list->itemWidget(list->topLevelItem(0), 1);
    lamp->setFocus();
    QTest::keyClick(lamp, Qt::Key_Return);
    QCOMPARE(identified.count(), 1);
    QVERIFY(dialog->isVisible());

    QTest::keyClicks(find<QLineEdit>(*dialog, "passwordEdit"), QStringLiteral("secret"));
    auto* cancel = find<QPushButton>(*dialog, "cancelButton");
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), int(QDialog::Rejected));
}

void TestLoginDialog::theNameOfTheHubIsInSight()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    dialog->show();
    const auto* list = find<QTreeWidget>(*dialog, "hubList");
    const QRect row = list->visualItemRect(list->topLevelItem(0));
    QVERIFY(list->viewport()->rect().contains(row));
    // One that is too long shows its beginning and its end, and all of it under the pointer.
    const QString name = QStringLiteral("A").repeated(63) + u'1';
    dialog->setHostName(name);
    QCOMPARE(list->textElideMode(), Qt::ElideMiddle);
    QCOMPARE(list->topLevelItem(0)->toolTip(0), name);
}

void TestLoginDialog::screenReadersAreToldWhichHubItIsFor()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    const auto* password = find<QLineEdit>(*dialog, "passwordEdit");
    QCOMPARE(dialog->accessibleName(), QStringLiteral("Login to Hub A at 10.0.0.7"));
    QCOMPARE(password->accessibleName(), QStringLiteral("Password"));
    QCOMPARE(password->accessibleDescription(), QStringLiteral("For Hub A at 10.0.0.7."));
    const Announcements announcements;
    if (!announcements.canHear()) {
        QSKIP("This system has no ear for what screen readers are told.");
    }
    dialog->setHostName(QStringLiteral("Hub B"));
    QCOMPARE(dialog->accessibleName(), QStringLiteral("Login to Hub B at 10.0.0.7"));
    QCOMPARE(password->accessibleDescription(), QStringLiteral("For Hub B at 10.0.0.7."));
    QCOMPARE(Announcements::count(dialog, QAccessible::NameChanged), 1);
    QCOMPARE(Announcements::count(password, QAccessible::DescriptionChanged), 1);
}

void TestLoginDialog::screenReadersAreToldOfARefusal()
{
    QWidget page;
    auto* dialog = newDialog(&page);
    const auto* password = find<QLineEdit>(*dialog, "passwordEdit");
    const QString refusal =
        QStringLiteral("The password you entered is incorrect. Please try again.");
    const Announcements announcements;
    if (!announcements.canHear()) {
        QSKIP("This system has no ear for what screen readers are told.");
    }
    dialog->setErrorVisible(true);
    QCOMPARE(dialog->accessibleDescription(), refusal);
    QVERIFY(password->accessibleDescription().endsWith(refusal));
    QCOMPARE(Announcements::count(password, QAccessible::DescriptionChanged), 1);
    dialog->show();
    QCOMPARE(Announcements::count(dialog, QAccessible::Alert), 1);
    dialog->hide();
    dialog->setErrorVisible(false);
    QVERIFY(!password->accessibleDescription().contains(refusal));
    dialog->show();
    QCOMPARE(Announcements::count(dialog, QAccessible::Alert), 0);
}

TESSEL_TEST_MAIN(TestLoginDialog)
#include "tst_logindialog.moc"
