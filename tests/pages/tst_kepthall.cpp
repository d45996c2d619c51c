#include "configuration.h"
#include "devicequeries.h"
#include "enteredwork.h"
#include "install.h"
#include "installhall.h"
#include "pagefixtures.h"
#include "resumefile.h"
#include "tablefixtures.h"
#include "testcase.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QTreeWidget>

namespace {

const QString base = QStringLiteral("127.51.12.1");

QString documents()
{
    return QDir::homePath() + QStringLiteral("/Documents");
}

QString folder()
{
    return documents() + QStringLiteral("/Tessel");
}

QStringList keptFiles()
{
    return QDir(folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString toolTip(const InstallHall& step, int hub)
{
    const QTreeWidgetItem* row = rowWith(*step.list(), "IP Address", step.address(hub));
    return row->toolTip(columnOf(*step.list(), "Status"));
}

QString quietLine(const InstallHall& step)
{
    return step.page.findChild<QLabel*>(QStringLiteral("quietLine"))->text();
}

Fault refusal(Exchange exchange)
{
    Fault fault;
    fault.exchange = exchange;
    fault.kind = FaultKind::Status;
    fault.number = 500;
    return fault;
}

/// "Execute" until nothing is being installed any more.
void installWhole(const InstallHall& step)
{
    press(step.execute());
    QTRY_VERIFY(!step.statuses().contains(u"Installing"));
}

/// Back, and forth again, where the button reads "Execute".
void enterAgain(InstallHall& step)
{
    press(buttonOf(step.page, "backButton"));
    step.page.enterFrom(7);
}

} // namespace

/// What the installation step leaves among the user's documents.
class TestKeptHall : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void testsKeepAwayFromThePersonsDocuments();
    void whenEveryHubIsDoneTheHallIsKeptAmongTheDocuments();
    void everyDoneNamesTheFileBesideWhatItSaidBefore();
    void theQuietLineNamesTheFileUntilTheNextInstallation();
    void whatAHubHasToSayIsMoreUrgentThanTheFile();
    void whatIsKeptIsWhatWasInstalled();
    void noFirmwarePasswordOrDigestIsKept();
    void whileAHubIsNotDoneNothingIsKept();
    void whatWasChangedWhileItWasInstalledIsNotKept();
    void eachInstallationIsKeptByItself();
    void aFileOfTheSameSecondStays();
    void aReportOfAHubThatIsNotListedKeepsNothingMore();
    void aHallThatCannotBeKeptStopsNothingAndIsOneLineOfOutput();
};

void TestKeptHall::init()
{
    TestCase::init();
    QDir(documents()).removeRecursively();
    QFile::remove(documents());
}

void TestKeptHall::testsKeepAwayFromThePersonsDocuments()
{
    QCOMPARE(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), documents());
}

void TestKeptHall::whenEveryHubIsDoneTheHallIsKeptAmongTheDocuments()
{
    const QDateTime before = QDateTime::currentDateTime();
    const InstallHall step(base, 2);
    installWhole(step);
    QCOMPARE(step.statuses(), QStringLiteral("Done Done"));
    QCOMPARE(keptFiles().size(), 1);
    const QString name = keptFiles().first();
    static const QRegularExpression form(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d\\.tessel$"));
    QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
    const auto when = QDateTime::fromString(name, QStringLiteral("yyyy-MM-dd HH-mm-ss'.tessel'"));
    QVERIFY(when >= before.addSecs(-1) && when <= QDateTime::currentDateTime());
    const ConfigurationReading kept = readConfiguration(folder() + u'/' + name);
    QVERIFY2(kept.configuration, qPrintable(kept.fault));
    QCOMPARE(kept.configuration->work.pageIndex, 7);
    QVERIFY(!kept.configuration->work.hasForeignElement);
    QCOMPARE(std::get<QSize>(kept.configuration->work.sections.last()), step.page.size());
}

void TestKeptHall::everyDoneNamesTheFileBesideWhatItSaidBefore()
{
    const InstallHall step(base, 2);
    step.setFault(2, {.exchange = Exchange::Recall,
                      .kind = FaultKind::Body,
                      .bytes = R"({"request":"refused"})"});
    press(step.execute());
    // In between the refusal shows as an "Error".
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done"));
    const QString sentence = QStringLiteral("The hall is kept in ") +
                             QDir::toNativeSeparators(folder() + u'/' + keptFiles().first());
    QCOMPARE(toolTip(step, 1), sentence);
    const QStringList lines = toolTip(step, 2).split(u'\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.first().startsWith(u"Recalling the preset of layout 1"),
             qPrintable(lines.first()));
    QCOMPARE(lines.last(), sentence);
    // Screen readers are told the same.
    const QTreeWidgetItem* row = rowWith(*step.list(), "IP Address", step.address(1));
    QCOMPARE(row->data(columnOf(*step.list(), "Status"), Qt::AccessibleDescriptionRole).toString(),
             sentence);
}

void TestKeptHall::theQuietLineNamesTheFileUntilTheNextInstallation()
{
    InstallHall step(base, 1);
    QCOMPARE(quietLine(step), QString());
    installWhole(step);
    QCOMPARE(quietLine(step), QStringLiteral("The hall is kept in ") +
                                  QDir::toNativeSeparators(folder() + u'/' + keptFiles().first()));
    enterAgain(step);
    QCOMPARE(quietLine(step), QString());
    const QString first = keptFiles().first();
    installWhole(step);
    QStringList others = keptFiles();
    others.removeOne(first);
    QVERIFY2(quietLine(step).endsWith(others.value(0)), qPrintable(quietLine(step)));
}

void TestKeptHall::whatAHubHasToSayIsMoreUrgentThanTheFile()
{
    const InstallHall step(base, 2);
    step.setFault(2, {.exchange = Exchange::Recall,
                      .kind = FaultKind::Body,
                      .bytes = R"({"request":"refused"})"});
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done"));
    QCOMPARE(keptFiles().size(), 1);
    QVERIFY2(quietLine(step).contains(u"Recalling the preset of layout 1"),
             qPrintable(quietLine(step)));
}

void TestKeptHall::whatIsKeptIsWhatWasInstalled()
{
    InstallHall step(quickHall(base, 2, 2));
    installWhole(step);
    TesselDoc again(nullptr);
    for (int index = 0; index < deviceCount(step.doc); ++index) {
        const DeviceEntry device = *deviceAt(step.doc, index);
        addTestDevice(again, device.label, device.modelName, device.ipAddress);
    }
    QVERIFY(again.loadResume(folder() + u'/' + keptFiles().first()));
    QCOMPARE(enteredWork(again), enteredWork(step.doc));
}

void TestKeptHall::noFirmwarePasswordOrDigestIsKept()
{
    const InstallHall step(base, 1);
    installWhole(step);
    const std::optional<ResumeFile> content =
        unpackResumeFile(bytesOf(folder() + u'/' + keptFiles().first()));
    QVERIFY(content);
    QVERIFY(content->xml.contains(step.address(1)));
    const QByteArray digest = QCryptographicHash::hash("secret7", QCryptographicHash::Md5).toHex();
    for (const QString& text :
         {QStringLiteral("2.1.0"), QStringLiteral("secret7"), QString::fromLatin1(digest)}) {
        QVERIFY2(!content->xml.contains(text, Qt::CaseInsensitive), qPrintable(text));
    }
}

void TestKeptHall::whileAHubIsNotDoneNothingIsKept()
{
    const InstallHall step(base, 2);
    step.setFault(1, refusal(Exchange::PresetEntry));
    installWhole(step);
    QCOMPARE(step.statuses(), QStringLiteral("Error Done"));
    QCOMPARE(keptFiles(), QStringList());
    QVERIFY(!QFile::exists(folder()));
    step.hall.hubs().first()->clearFaults();
    installWhole(step);
    QCOMPARE(step.statuses(), QStringLiteral("Done Done"));
    QCOMPARE(keptFiles().size(), 1);
}

void TestKeptHall::whatWasChangedWhileItWasInstalledIsNotKept()
{
    InstallHall step(base, 1);
    Fault slow;
    slow.exchange = Exchange::Recall;
    slow.kind = FaultKind::Slow;
    slow.number = 300;
    step.setFault(1, slow);
    press(step.execute());
    QTRY_COMPARE(timesAsked(*step.hub(1), Exchange::Recall), 1);
    setDeviceRoom(step.doc, step.address(1), 2);
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done"));
    QCOMPARE(keptFiles(), QStringList());
    QCOMPARE(toolTip(step, 1), QString());
}

void TestKeptHall::eachInstallationIsKeptByItself()
{
    InstallHall step(base, 1);
    installWhole(step);
    const QString first = folder() + u'/' + keptFiles().first();
    const QByteArray before = bytesOf(first);
    setDeviceLabel(step.doc, step.address(1), QStringLiteral("Other"));
    enterAgain(step);
    installWhole(step);
    QCOMPARE(keptFiles().size(), 2);
    QCOMPARE(bytesOf(first), before);
}

void TestKeptHall::aFileOfTheSameSecondStays()
{
    constexpr int seconds = 60;
    QVERIFY(QDir().mkpath(folder()));
    const QDateTime now = QDateTime::currentDateTime();
    for (int second = 0; second < seconds; ++second) {
        const QString name =
            now.addSecs(second).toString(QStringLiteral("yyyy-MM-dd HH-mm-ss'.tessel'"));
        QFile file(folder() + u'/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const InstallHall step(base, 1);
    installWhole(step);
    int emptyFiles = 0;
    for (const QString& name : keptFiles()) {
        const bool isEmpty = bytesOf(folder() + u'/' + name).isEmpty();
        emptyFiles += isEmpty ? 1 : 0;
        QVERIFY2(isEmpty || name.endsWith(u" (2).tessel"), qPrintable(name));
    }
    QCOMPARE(emptyFiles, seconds);
    QCOMPARE(keptFiles().size(), seconds + 1);
}

void TestKeptHall::aReportOfAHubThatIsNotListedKeepsNothingMore()
{
    const InstallHall step(base, 1);
    installWhole(step);
    step.page.findChild<Install*>()->presetSendFinished(QStringLiteral("127.51.12.99"), 1);
    QCOMPARE(step.statuses(), QStringLiteral("Done"));
    QCOMPARE(keptFiles().size(), 1);
}

void TestKeptHall::aHallThatCannotBeKeptStopsNothingAndIsOneLineOfOutput()
{
    QFile inTheWay(documents());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const InstallHall step(base, 1);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral(
                                         "^The hall could not be kept in .*\\.tessel$")));
    installWhole(step);
    QCOMPARE(step.statuses(), QStringLiteral("Done"));
    QCOMPARE(step.execute()->text(), QStringLiteral("Next"));
    QVERIFY(step.controller.installDone);
    QCOMPARE(toolTip(step, 1), QString());
}

TESSEL_TEST_MAIN(TestKeptHall)
#include "tst_kepthall.moc"
