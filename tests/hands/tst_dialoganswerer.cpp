#include "dialoganswerer.h"
#include "testcase.h"

#include <QDialog>
#include <QMessageBox>
#include <QTest>

class TestDialogAnswerer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDialogIsAnsweredByItsNameOrItsTitle();
    void whatAMessageBoxSaidIsKept();
    void aDialogShownAgainIsAnsweredAgain();
    void aDialogWhoseAnswererWentBeforeItClosedIsAnsweredByTheNext();
    void aDialogStaysOpenUntilItIsReady();
    void anAnswerMayOpenADialogThatIsAnsweredToo();
    void theYoungestThatKnowsADialogAnswersIt();
    void anExpectedDialogThatNeverComesIsTold();
    void aDialogThatNobodyExpectsIsToldAndRejected();
    void aSecondDialogWhereOneWasExpectedIsToldAndRejected();
};

namespace {

int open(const QString& title, const QString& name = {})
{
    QDialog dialog;
    dialog.setWindowTitle(title);
    dialog.setObjectName(name);
    return dialog.exec();
}

void accept(QWidget* dialog)
{
    qobject_cast<QDialog*>(dialog)->accept();
}

void willBeTold(const char* text)
{
    QTest::ignoreMessage(QtWarningMsg, text);
}

} // namespace

void TestDialogAnswerer::aDialogIsAnsweredByItsNameOrItsTitle()
{
    DialogAnswerer answerer;
    answerer.expect("named", accept);
    answerer.expect("Title", accept);
    QCOMPARE(open(QStringLiteral("Other title"), QStringLiteral("named")), int(QDialog::Accepted));
    QCOMPARE(open(QStringLiteral("Title")), int(QDialog::Accepted));
    QCOMPARE(answerer.answered("named"), 1);
    QCOMPARE(answerer.answered("Title"), 1);
    QCOMPARE(answerer.answered("Other title"), 0);
}

void TestDialogAnswerer::whatAMessageBoxSaidIsKept()
{
    const DialogAnswerer answerer("Question", pressing("No"));
    QMessageBox box(QMessageBox::Question, QStringLiteral("Question"), QStringLiteral("Well?"),
                    QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.exec(), int(QMessageBox::No));
    QCOMPARE(answerer.text(), QStringLiteral("Well?"));
    QCOMPARE(answerer.buttons(), QStringList({QStringLiteral("No"), QStringLiteral("Yes")}));
}

void TestDialogAnswerer::aDialogShownAgainIsAnsweredAgain()
{
    DialogAnswerer answerer;
    answerer.onDialog("Title", accept);
    QDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Title"));
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(answerer.answered("Title"), 2);
}

void TestDialogAnswerer::aDialogWhoseAnswererWentBeforeItClosedIsAnsweredByTheNext()
{
    QDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Title"));
    dialog.setModal(true);
    {
        DialogAnswerer first;
        first.onDialog("Title", [](QWidget*) {});
        dialog.show();
        QTRY_COMPARE(first.answered("Title"), 1);
    }
    dialog.hide();
    DialogAnswerer second;
    second.onDialog("Title", accept);
    dialog.show();
    QTRY_COMPARE(second.answered("Title"), 1);
}

void TestDialogAnswerer::aDialogStaysOpenUntilItIsReady()
{
    int looks = 0;
    DialogAnswerer answerer;
    answerer.onDialog("Title", accept, [&looks](QWidget*) { return ++looks == 3; });
    QCOMPARE(open(QStringLiteral("Title")), int(QDialog::Accepted));
    QCOMPARE(looks, 3);
}

void TestDialogAnswerer::anAnswerMayOpenADialogThatIsAnsweredToo()
{
    DialogAnswerer answerer("Inner", accept);
    answerer.expect("Outer", [](QWidget* outer) {
        QCOMPARE(open(QStringLiteral("Inner")), int(QDialog::Accepted));
        accept(outer);
    });
    QCOMPARE(open(QStringLiteral("Outer")), int(QDialog::Accepted));
}

void TestDialogAnswerer::theYoungestThatKnowsADialogAnswersIt()
{
    DialogAnswerer oldest;
    oldest.onDialog("Title", accept);
    DialogAnswerer younger;
    younger.onDialog("Title", accept);
    const DialogAnswerer youngest("Other", accept);
    QCOMPARE(open(QStringLiteral("Title")), int(QDialog::Accepted));
    QCOMPARE(open(QStringLiteral("Other")), int(QDialog::Accepted));
    QCOMPARE(oldest.answered("Title"), 0);
    QCOMPARE(younger.answered("Title"), 1);
}

void TestDialogAnswerer::anExpectedDialogThatNeverComesIsTold()
{
    willBeTold("The dialog \"Title\" never came up");
    const DialogAnswerer answerer("Title", accept);
}

void TestDialogAnswerer::aDialogThatNobodyExpectsIsToldAndRejected()
{
    willBeTold("Nobody expected the dialog \"Title\"");
    const DialogAnswerer nothingIsAsked;
    QCOMPARE(open(QStringLiteral("Title")), int(QDialog::Rejected));
}

void TestDialogAnswerer::aSecondDialogWhereOneWasExpectedIsToldAndRejected()
{
    willBeTold("Nobody expected the dialog \"Title\"");
    const DialogAnswerer answerer("Title", accept);
    QCOMPARE(open(QStringLiteral("Title")), int(QDialog::Accepted));
    QCOMPARE(open(QStringLiteral("Title")), int(QDialog::Rejected));
}

TESSEL_TEST_MAIN(TestDialogAnswerer)
#include "tst_dialoganswerer.moc"
