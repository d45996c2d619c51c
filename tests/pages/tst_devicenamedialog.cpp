#include "devicenamedialog.h"
#include "testcase.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class TestDeviceNameDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatItAsksFor();
    void opensOnThePresentName();
    void okIsOfferedOnlyForANameThatIsNotEmpty();
    void opensWithOkDisabledForAnEmptyLabel();
    void onlyLettersDigitsAndHyphensCanBeTyped();
    void aLabelThatIsNoNameStaysUntilEdited();
    void aLabelThatIsNoNameLetsNothingElseIn_data();
    void aLabelThatIsNoNameLetsNothingElseIn();
    void whatOneCannotTypeOneCannotPaste();
    void theCursorStaysWhereTheLabelIsEdited();
    void undoBringsTheLabelBackAndNothingElseIn();
    void aNameEndsAtSixtyFourCharacters();
    void okAndReturnAccept();
    void cancelAndEscapeReject();
    void returnOnAnEmptyNameDoesNotAccept();
    void tabFollowsReading();
};

namespace {

struct Opened
{
    explicit Opened(const QString& name)
        : dialog(name)
    {
        dialog.show();
    }

    DeviceNameDialog dialog;
    QLineEdit* edit = dialog.findChild<QLineEdit*>(QStringLiteral("nameEdit"));
    QPushButton* ok = dialog.findChild<QPushButton*>(QStringLiteral("okButton"));
    QPushButton* cancel = dialog.findChild<QPushButton*>(QStringLiteral("cancelButton"));
};

} // namespace

void TestDeviceNameDialog::saysWhatItAsksFor()
{
    const Opened opened(QStringLiteral("Hub-A"));
    QCOMPARE(opened.dialog.windowTitle(), QStringLiteral("Change Name"));
    const auto* label = opened.dialog.findChild<QLabel*>();
    QCOMPARE(label->text(), QStringLiteral("Enter device name"));
    QCOMPARE(label->buddy(), opened.edit);
    QCOMPARE(opened.ok->text(), QStringLiteral("OK"));
    QCOMPARE(opened.cancel->text(), QStringLiteral("Cancel"));
}

void TestDeviceNameDialog::opensOnThePresentName()
{
    const Opened opened(QStringLiteral("Hub-A"));
    QCOMPARE(opened.edit->text(), QStringLiteral("Hub-A"));
    QVERIFY(opened.ok->isEnabled());
    QTest::keyClick(opened.edit, Qt::Key_B);
    QCOMPARE(opened.dialog.name(), QStringLiteral("b"));
}

void TestDeviceNameDialog::okIsOfferedOnlyForANameThatIsNotEmpty()
{
    const Opened opened(QStringLiteral("A"));
    QTest::keyClick(opened.edit, Qt::Key_Backspace);
    QVERIFY(!opened.ok->isEnabled());
    QTest::keyClick(opened.edit, Qt::Key_7);
    QVERIFY(opened.ok->isEnabled());
}

void TestDeviceNameDialog::opensWithOkDisabledForAnEmptyLabel()
{
    const Opened opened((QString()));
    QVERIFY(!opened.ok->isEnabled());
}

void TestDeviceNameDialog::onlyLettersDigitsAndHyphensCanBeTyped()
{
    const Opened opened(QStringLiteral("x"));
    QTest::keyClicks(opened.edit, QStringLiteral("Az_0 9-./\"9"));
    QCOMPARE(opened.dialog.name(), QStringLiteral("Az09-9"));
}

void TestDeviceNameDialog::aLabelThatIsNoNameStaysUntilEdited()
{
    Opened opened(QStringLiteral("Hall East_1"));
    QCOMPARE(opened.dialog.name(), QStringLiteral("Hall East_1"));
    QVERIFY(opened.ok->isEnabled());
    QSignalSpy accepted(&opened.dialog, SIGNAL(accepted()));
    QTest::keyClick(opened.edit, Qt::Key_Return);
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(opened.dialog.name(), QStringLiteral("Hall East_1"));
}

void TestDeviceNameDialog::aLabelThatIsNoNameLetsNothingElseIn_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("replacing");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    const QString label = QStringLiteral("East_1");
    QTest::newRow("at its end") << label << false << QStringLiteral("a ./_2")
                                << QStringLiteral("East_1a2");
    QTest::newRow("in its place") << label << true << QStringLiteral("a_b c")
                                  << QStringLiteral("abc");
    QTest::newRow("in its place at once")
        << label << true << QStringLiteral("_ x") << QStringLiteral("x");
    QTest::newRow("umlaut and quote")
        << QStringLiteral("B\u00FChne") << false << QStringLiteral("\u00FC\"9")
        << QStringLiteral("B\u00FChne9");
}

void TestDeviceNameDialog::aLabelThatIsNoNameLetsNothingElseIn()
{
    QFETCH(const QString, label);
    QFETCH(const bool, replacing);
    QFETCH(const QString, typed);
    const Opened opened(label);
    QTest::keyClick(opened.edit, replacing ? Qt::Key_Delete : Qt::Key_End);
    for (const QChar character : typed) {
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(opened.edit, &event);
    }
    QTEST(opened.dialog.name(), "name");
}

void TestDeviceNameDialog::whatOneCannotTypeOneCannotPaste()
{
    const Opened opened(QStringLiteral("East_1"));
    opened.edit->end(false);
    opened.edit->insert(QStringLiteral("a b"));
    QCOMPARE(opened.dialog.name(), QStringLiteral("East_1"));
    opened.edit->insert(QStringLiteral("ab"));
    QCOMPARE(opened.dialog.name(), QStringLiteral("East_1ab"));
}

void TestDeviceNameDialog::theCursorStaysWhereTheLabelIsEdited()
{
    const Opened opened(QStringLiteral("East_1"));
    QTest::keyClick(opened.edit, Qt::Key_Home);
    QTest::keyClicks(opened.edit, QStringLiteral("S_9"));
    QCOMPARE(opened.dialog.name(), QStringLiteral("S9East_1"));
}

void TestDeviceNameDialog::undoBringsTheLabelBackAndNothingElseIn()
{
    const Opened opened(QStringLiteral("East_1"));
    QTest::keyClick(opened.edit, Qt::Key_X);
    QCOMPARE(opened.dialog.name(), QStringLiteral("x"));
    opened.edit->undo();
    QCOMPARE(opened.dialog.name(), QStringLiteral("East_1"));
    QTest::keyClick(opened.edit, Qt::Key_End);
    QTest::keyClicks(opened.edit, QStringLiteral("_ /2"));
    QCOMPARE(opened.dialog.name(), QStringLiteral("East_12"));
}

void TestDeviceNameDialog::aNameEndsAtSixtyFourCharacters()
{
    const Opened opened((QString()));
    QTest::keyClicks(opened.edit, QString(70, u'n'));
    QCOMPARE(opened.dialog.name(), QString(64, u'n'));
}

void TestDeviceNameDialog::okAndReturnAccept()
{
    Opened byMouse(QStringLiteral("Hub-A"));
    QSignalSpy accepted(&byMouse.dialog, SIGNAL(accepted()));
    QTest::mouseClick(byMouse.ok, Qt::LeftButton);
    QCOMPARE(accepted.size(), 1);

    Opened byKey(QStringLiteral("Hub-A"));
    QSignalSpy acceptedByKey(&byKey.dialog, SIGNAL(accepted()));
    QTest::keyClick(byKey.edit, Qt::Key_Return);
    QCOMPARE(acceptedByKey.size(), 1);
}

void TestDeviceNameDialog::cancelAndEscapeReject()
{
    Opened byMouse(QStringLiteral("Hub-A"));
    QSignalSpy rejected(&byMouse.dialog, SIGNAL(rejected()));
    QTest::mouseClick(byMouse.cancel, Qt::LeftButton);
    QCOMPARE(rejected.size(), 1);

    Opened byKey(QStringLiteral("Hub-A"));
    QSignalSpy rejectedByKey(&byKey.dialog, SIGNAL(rejected()));
    QTest::keyClick(byKey.edit, Qt::Key_Escape);
    QCOMPARE(rejectedByKey.size(), 1);
}

void TestDeviceNameDialog::returnOnAnEmptyNameDoesNotAccept()
{
    Opened opened((QString()));
    QSignalSpy finished(&opened.dialog, SIGNAL(finished(int)));
    QTest::keyClick(opened.edit, Qt::Key_Return);
    QCOMPARE(finished.size(), 0);
    QVERIFY(opened.dialog.isVisible());
}

void TestDeviceNameDialog::tabFollowsReading()
{
    Opened opened(QStringLiteral("Hub-A"));
    QVERIFY(QTest::qWaitForWindowActive(&opened.dialog));
    QCOMPARE(opened.dialog.focusWidget(), opened.edit);
    // Which of the buttons stands on the left is up to the platform.
    const bool okIsLeft = opened.ok->x() < opened.cancel->x();
    QTest::keyClick(opened.edit, Qt::Key_Tab);
    QCOMPARE(opened.dialog.focusWidget(), okIsLeft ? opened.ok : opened.cancel);
    QTest::keyClick(opened.dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(opened.dialog.focusWidget(), okIsLeft ? opened.cancel : opened.ok);
    QTest::keyClick(opened.dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(opened.dialog.focusWidget(), opened.edit);
}

TESSEL_TEST_MAIN(TestDeviceNameDialog)
#include "tst_devicenamedialog.moc"
