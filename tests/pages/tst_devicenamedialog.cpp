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
    void okIsOfferedForNamesAndTheUnchangedLabelOnly_data();
    void okIsOfferedForNamesAndTheUnchangedLabelOnly();
    void theLabelBroughtBackIsUnchanged();
    void aLabelTooLongForANameIsNotUnchanged();
    void returnAcceptsNothingThatOkIsNotOfferedFor();
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
    void type(const QString& text) const
    {
        for (const QChar character : text) {
            QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
            QCoreApplication::sendEvent(edit, &event);
        }
    }

    void press(const QList<Qt::Key>& keys) const
    {
        for (const Qt::Key key : keys) {
            QTest::keyClick(edit, key);
        }
    }

    QPushButton* cancel = dialog.findChild<QPushButton*>(QStringLiteral("cancelButton"));
};

/// Where typing begins in a dialog that has just opened.
enum Start
{
    Selected, ///< over the label
    Emptied,  ///< after the label was deleted
    AtTheEnd  ///< behind the label
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

void TestDeviceNameDialog::okIsOfferedForNamesAndTheUnchangedLabelOnly_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("offered");
    using Keys = QList<Qt::Key>;
    const QString label = QStringLiteral("Room A");
    QTest::newRow("unchanged") << label << Keys() << label << true;
    QTest::newRow("unchanged without a letter")
        << QStringLiteral(" ") << Keys() << QStringLiteral(" ") << true;
    QTest::newRow("a character gone before the blank")
        << label << Keys({Qt::Key_Home, Qt::Key_Delete}) << QStringLiteral("oom A") << false;
    QTest::newRow("a character gone behind the blank")
        << label << Keys({Qt::Key_End, Qt::Key_Backspace}) << QStringLiteral("Room ") << false;
    QTest::newRow("the blank gone as well")
        << label << Keys({Qt::Key_End, Qt::Key_Backspace, Qt::Key_Backspace})
        << QStringLiteral("Room") << true;
    QTest::newRow("nothing but the blank left")
        << QStringLiteral("A B")
        << Keys({Qt::Key_End, Qt::Key_Backspace, Qt::Key_Home, Qt::Key_Delete})
        << QStringLiteral(" ") << false;
    QTest::newRow("a character more")
        << label << Keys({Qt::Key_End, Qt::Key_7}) << QStringLiteral("Room A7") << false;
    QTest::newRow("and gone again")
        << label << Keys({Qt::Key_End, Qt::Key_7, Qt::Key_Backspace}) << label << true;
    QTest::newRow("nothing left") << label << Keys({Qt::Key_Delete}) << QString() << false;
    QTest::newRow("overtyped with a name")
        << label << Keys({Qt::Key_B}) << QStringLiteral("b") << true;
}

void TestDeviceNameDialog::okIsOfferedForNamesAndTheUnchangedLabelOnly()
{
    QFETCH(const QString, label);
    QFETCH(const QList<Qt::Key>, keys);
    QFETCH(const bool, offered);
    const Opened opened(label);
    opened.press(keys);
    QTEST(opened.dialog.name(), "name");
    QCOMPARE(opened.ok->isEnabled(), offered);
}

void TestDeviceNameDialog::theLabelBroughtBackIsUnchanged()
{
    const Opened opened(QStringLiteral("Room A"));
    opened.press({Qt::Key_End, Qt::Key_Backspace});
    QVERIFY(!opened.ok->isEnabled());
    opened.edit->undo();
    QCOMPARE(opened.dialog.name(), QStringLiteral("Room A"));
    QVERIFY(opened.ok->isEnabled());
}

void TestDeviceNameDialog::aLabelTooLongForANameIsNotUnchanged()
{
    const Opened withBlanks(QStringLiteral("n ").repeated(33));
    QCOMPARE(withBlanks.dialog.name().size(), 64);
    QVERIFY(!withBlanks.ok->isEnabled());
    // What is left of this one is a name.
    const Opened without(QString(70, u'n'));
    QCOMPARE(without.dialog.name(), QString(64, u'n'));
    QVERIFY(without.ok->isEnabled());
}

void TestDeviceNameDialog::returnAcceptsNothingThatOkIsNotOfferedFor()
{
    Opened opened(QStringLiteral("Room A"));
    QSignalSpy finished(&opened.dialog, SIGNAL(finished(int)));
    opened.press({Qt::Key_End, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Enter});
    QCOMPARE(finished.size(), 0);
    QVERIFY(opened.dialog.isVisible());
    opened.press({Qt::Key_Backspace, Qt::Key_Return});
    QCOMPARE(finished.size(), 1);
    QCOMPARE(opened.dialog.name(), QStringLiteral("Room"));
}

void TestDeviceNameDialog::aLabelThatIsNoNameLetsNothingElseIn_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<Start>("start");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    const QString label = QStringLiteral("East_1");
    QTest::newRow("at its end") << label << AtTheEnd << QStringLiteral("a ./_2")
                                << QStringLiteral("East_1a2");
    QTest::newRow("in its place") << label << Emptied << QStringLiteral("a_b c")
                                  << QStringLiteral("abc");
    QTest::newRow("in its place at once")
        << label << Emptied << QStringLiteral("_ x") << QStringLiteral("x");
    QTest::newRow("over all of it")
        << QStringLiteral("Room A") << Selected << QStringLiteral(" ") << QStringLiteral("Room A");
    QTest::newRow("over all of it, after a name")
        << QStringLiteral("Room A") << Selected << QStringLiteral("b ") << QStringLiteral("b");
    QTest::newRow("umlaut and quote")
        << QStringLiteral("B\u00FChne") << AtTheEnd << QStringLiteral("\u00FC\"9")
        << QStringLiteral("B\u00FChne9");
}

void TestDeviceNameDialog::aLabelThatIsNoNameLetsNothingElseIn()
{
    QFETCH(const QString, label);
    QFETCH(const Start, start);
    QFETCH(const QString, typed);
    const Opened opened(label);
    if (start != Selected) {
        QTest::keyClick(opened.edit, start == Emptied ? Qt::Key_Delete : Qt::Key_End);
    }
    opened.type(typed);
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
