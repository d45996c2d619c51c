#include "contrast.h"
#include "installhall.h"
#include "pagefixtures.h"
#include "testcase.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>

/// What the installation step says beside "Installing...", "Error" and "Done".
class TestInstallReasons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anErrorNamesItsRequestAndWhatTheHubAnswered();
    void aCancelledLogInIsNamed();
    void theLineSpeaksOfTheCurrentHubFirst();
    void aRefusedRecallIsNamedAlthoughTheHubIsDone();
    void theReasonIsPrintedOnce();
    void theReasonGoesWithTheNextTry();
    void theStatusShowsHowFarTheTransferIs();
    void theTextOnTheBarCanBeRead();
    void aHallWithoutHubsHasNothingToInstall();
    void theDisabledButtonSaysWhatIsWaitedFor();
};

namespace {

constexpr int statusColumn = 3;
// What "Done" says when nothing else is to be said of it.
const QString hallIsKept = QStringLiteral("The hall is kept in ");

QTreeWidgetItem* rowOf(const InstallHall& step, int hub)
{
    return rowWith(*step.list(), "IP Address", step.address(hub));
}

/// The same for a pointer and for ears.
QString told(const InstallHall& step, int hub)
{
    const QTreeWidgetItem* row = rowOf(step, hub);
    const QString words = row->toolTip(statusColumn);
    return row->data(statusColumn, Qt::AccessibleDescriptionRole).toString() == words
               ? words
               : QStringLiteral("two different texts");
}

QString line(const InstallHall& step)
{
    return step.page.findChild<QLabel*>(QStringLiteral("quietLine"))->text();
}

QString label(const InstallHall& step, int hub)
{
    return textIn(*rowOf(step, hub), "Hostname");
}

Fault fullDisk(int skip = 0)
{
    return {.exchange = Exchange::DeviceFile,
            .kind = FaultKind::Status,
            .number = 507,
            .times = 1,
            .skip = skip};
}

Fault refusedRecall()
{
    return {
        .exchange = Exchange::Recall, .kind = FaultKind::Body, .bytes = R"({"request":"refused"})"};
}

QStringList reasonsPrinted;

void noteReasons(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    static const QRegularExpression reason(QStringLiteral("^127[.0-9]+: "));
    if (reason.match(text).hasMatch()) {
        reasonsPrinted.append(text);
    }
}

} // namespace

void TestInstallReasons::anErrorNamesItsRequestAndWhatTheHubAnswered()
{
    const InstallHall step(quickHall(QStringLiteral("127.51.11.1"), 1, 2));
    // The first device's file of the first layout is taken, the second one's is not.
    step.setFault(1, fullDisk(1));
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Error"));
    const QString second = step.hall.description().peripherals.at(1).address;
    const QString reason =
        QStringLiteral("Storing the file of %1 for layout 1: the hub answered 507 ").arg(second);
    QVERIFY2(told(step, 1).startsWith(reason), qPrintable(told(step, 1)));
    QCOMPARE(line(step), label(step, 1) + QStringLiteral(": ") + told(step, 1));
}

void TestInstallReasons::aCancelledLogInIsNamed()
{
    InstallHall step(QStringLiteral("127.51.11.11"), 1);
    step.answers.cancel(step.address(1));
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Error"));
    QCOMPARE(told(step, 1), QStringLiteral("Logging in: you cancelled the log-in"));
}

void TestInstallReasons::theLineSpeaksOfTheCurrentHubFirst()
{
    const InstallHall step(QStringLiteral("127.51.11.21"), 3);
    step.setFault(1, {.exchange = Exchange::Status, .kind = FaultKind::Status, .number = 500});
    step.setFault(2, {.exchange = Exchange::StartExport, .kind = FaultKind::Status, .number = 503});
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Error Error Done"));
    step.list()->setCurrentItem(rowOf(step, 2));
    QVERIFY(line(step).startsWith(label(step, 2) + QStringLiteral(": Starting the export")));
    step.list()->setCurrentItem(rowOf(step, 1));
    QVERIFY(line(step).startsWith(label(step, 1) + QStringLiteral(": Asking for")));
    // Nothing is to be said of this one; an error elsewhere must not go unsaid.
    step.list()->setCurrentItem(rowOf(step, 3));
    QVERIFY(line(step).startsWith(label(step, 1)));
}

void TestInstallReasons::aRefusedRecallIsNamedAlthoughTheHubIsDone()
{
    const InstallHall step(QStringLiteral("127.51.11.31"), 1);
    step.setFault(1, refusedRecall());
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Done"));
    // Behind it stands where the hall is kept.
    const QString reason = told(step, 1).section(u'\n', 0, 0);
    QCOMPARE(reason, QStringLiteral("Recalling the preset of layout 1: the hub answered, but did "
                                    "not do it"));
    QVERIFY(line(step).endsWith(reason));
}

void TestInstallReasons::theReasonIsPrintedOnce()
{
    const InstallHall step(QStringLiteral("127.51.11.41"), 2);
    step.setFault(1, {.exchange = Exchange::Token, .kind = FaultKind::Status, .number = 404});
    step.setFault(2, refusedRecall()); // told when it is refused and at the end
    reasonsPrinted.clear();
    QtMessageHandler before = qInstallMessageHandler(noteReasons);
    press(step.execute());
    const bool ended =
        QTest::qWaitFor([&step] { return step.statuses() == QLatin1String("Error Done"); });
    qInstallMessageHandler(before);
    QVERIFY(ended);
    QCOMPARE(reasonsPrinted.size(), 2);
    QVERIFY(reasonsPrinted.at(0).startsWith(
        QStringLiteral("127.51.11.41: Asking for leave to log in: the hub answered 404")));
    QCOMPARE(reasonsPrinted.at(1),
             QStringLiteral("127.51.11.42: Recalling the preset of layout 1: the hub answered, but "
                            "did not do it"));
}

void TestInstallReasons::theReasonGoesWithTheNextTry()
{
    const InstallHall step(quickHall(QStringLiteral("127.51.11.51"), 1, 1));
    step.setFault(1, fullDisk());
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Error"));
    QTRY_VERIFY(step.execute()->isEnabled());
    press(step.execute());
    QCOMPARE(line(step), QString());
    QTRY_COMPARE(step.status(1), QStringLiteral("Done"));
    QVERIFY(told(step, 1).startsWith(hallIsKept));
    QCOMPARE(line(step), told(step, 1));
}

void TestInstallReasons::theStatusShowsHowFarTheTransferIs()
{
    const InstallHall step(quickHall(QStringLiteral("127.51.11.61"), 1, 2));
    QStringList seen;
    QVERIFY(connect(step.list(), &QTreeWidget::itemChanged, this, [&](QTreeWidgetItem* row) {
        const QString words = row->toolTip(statusColumn);
        if (!words.isEmpty() && !words.startsWith(hallIsKept) && !seen.contains(words)) {
            QCOMPARE(row->text(statusColumn), QStringLiteral("Installing..."));
            seen.append(words);
        }
    }));
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Done"));
    // Two layouts, in each the hub's own file and two devices'.
    QStringList expected;
    for (int files = 0; files <= 6; ++files) {
        expected.append(QStringLiteral("%1 of 6 files stored").arg(files));
    }
    QCOMPARE(seen, expected);
    QVERIFY(told(step, 1).startsWith(hallIsKept));
    QVERIFY(!rowOf(step, 1)->data(statusColumn, Qt::UserRole).isValid());
}

void TestInstallReasons::theTextOnTheBarCanBeRead()
{
    const InstallHall step(quickHall(QStringLiteral("127.51.11.71"), 1, 1));
    // It stops in the middle: two of the four files are stored.
    step.setFault(
        1, {.exchange = Exchange::PresetEntry, .kind = FaultKind::Silence, .times = 1, .skip = 1});
    press(step.execute());
    QTRY_COMPARE(told(step, 1), QStringLiteral("2 of 4 files stored"));
    for (const bool selected : {false, true}) {
        step.list()->clearSelection();
        rowOf(step, 1)->setSelected(selected);
        const QRect cell =
            step.list()->visualRect(step.list()->indexFromItem(rowOf(step, 1), statusColumn));
        const QImage picture = step.list()->viewport()->grab(cell).toImage();
        const QColor bar = picture.pixelColor(cell.width() / 4, 2);
        const QColor ground = picture.pixelColor(3 * cell.width() / 4, 2);
        QVERIFY2(bar != ground, qPrintable(bar.name() + u' ' + ground.name()));
        const QPalette palette = step.list()->palette();
        QVERIFY(contrast(bar, palette.color(selected ? QPalette::HighlightedText
                                                     : QPalette::Text)) >= textContrast);
        QCOMPARE(ground, palette.color(selected ? QPalette::Highlight : QPalette::Base));
    }
}

void TestInstallReasons::aHallWithoutHubsHasNothingToInstall()
{
    TesselDoc doc(nullptr);
    FakeController controller;
    PageInstall page(&controller, &doc, nullptr);
    page.enterFrom(7);
    QCOMPARE(page.findChild<QLabel*>(QStringLiteral("quietLine"))->text(),
             QStringLiteral("No PX-HB stands in a room: there is nothing to install."));
}

void TestInstallReasons::theDisabledButtonSaysWhatIsWaitedFor()
{
    InstallHall step(QStringLiteral("127.51.11.81"), 1);
    press(step.execute());
    QVERIFY(!step.execute()->isEnabled());
    QCOMPARE(step.execute()->toolTip(),
             QStringLiteral("Wait until every hub is done or has failed."));
    QCOMPARE(step.execute()->accessibleDescription(), step.execute()->toolTip());
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
    QCOMPARE(step.execute()->toolTip(), QStringLiteral("Alt+Right"));
    QApplication::setActiveWindow(&step.page);
    QTest::keyClick(&step.page, Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(step.controller.nexts, 1);
}

TESSEL_TEST_MAIN(TestInstallReasons)
#include "tst_installreasons.moc"
