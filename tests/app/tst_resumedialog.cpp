#include "resumedialog.h"
#include "testcase.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTest>

class TestResumeDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysPleaseWaitAndHasNoButtons();
    void escapeDoesNotDismissIt();
};

void TestResumeDialog::saysPleaseWaitAndHasNoButtons()
{
    const ResumeDialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Resume"));
    QCOMPARE(dialog.findChild<QLabel*>()->text(), QStringLiteral("Please wait..."));
    QCOMPARE(dialog.layout()->contentsMargins(), QMargins(20, 20, 20, 20));
    QVERIFY(dialog.findChildren<QAbstractButton*>().isEmpty());
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

void TestResumeDialog::escapeDoesNotDismissIt()
{
    ResumeDialog dialog(nullptr);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
}

TESSEL_TEST_MAIN(TestResumeDialog)
#include "tst_resumedialog.moc"
