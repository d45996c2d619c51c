// What of a password is in the wizard's memory, as a core file would show it. The hall is a program
// of its own, and the password is typed letter by letter from a masked text: whatever is found, the
// wizard has left there.
#include "dialoganswerer.h"
#include "fakecontroller.h"
#include "finding.h"
#include "memorysnapshot.h"
#include "pagefixtures.h"
#include "pageinstall.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include <memory>
#include <optional>

namespace {

const QString address = QStringLiteral("127.84.1.1");
constexpr int stepBefore = 7;
constexpr int longestWaitMs = 20'000;

/// A password of twelve letters and digits, and the hexadecimal MD5 of it, both masked.
const QByteArray password = QByteArray::fromHex("316d2c0b20636b370d38690e");
const QByteArray digest =
    QByteArray::fromHex("393f623c6b3b3c6d3b3f636e6a62686939693b696962396d39636a6c38696a6e");

/// Types the password into every field of the dialog that has come up.
void typePassword(QWidget* dialog)
{
    for (QLineEdit* field : dialog->findChildren<QLineEdit*>()) {
        for (const char letter : password) {
            QTest::keyClick(field, char(letter ^ MemorySnapshot::mask));
        }
    }
}

/// Gives a new hub its password and logs in.
void answerDialogs(DialogAnswerer& answers)
{
    answers.onDialog("initialPasswordDialog", [](QWidget* dialog) {
        typePassword(dialog);
        press(buttonOf(*dialog, "submitButton"));
    });
    answers.onDialog("loginDialog", [](QWidget* dialog) {
        typePassword(dialog);
        press(buttonOf(*dialog, "loginButton"));
    });
}

/// The bytes of a digest as they are, worked out without unmasking it as a whole.
QByteArray rawDigest()
{
    QByteArray raw;
    for (qsizetype at = 0; at < digest.size(); at += 2) {
        QByteArray pair = digest.sliced(at, 2);
        for (char& figure : pair) {
            figure = char(figure ^ MemorySnapshot::mask);
        }
        raw.append(char(QByteArray::fromHex(pair).front() ^ MemorySnapshot::mask));
    }
    return raw;
}

} // namespace

class TestPasswordMemory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void whileThePageIsThereOnlyTheFieldsHoldThePassword();
    void afterwardsThePasswordIsGone();
    void theDigestIsNowhereButInTheTwoRequests();
    void cleanupTestCase();

private:
    void install();

    QProcess m_hall;
    std::optional<MemorySnapshot> m_before;
    std::optional<MemorySnapshot> m_during;
    std::optional<MemorySnapshot> m_after;
};

void TestPasswordMemory::initTestCase()
{
    TestCase::initTestCase();
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The checker holds back what the program has freed");
#endif
    m_hall.setProcessChannelMode(QProcess::MergedChannels);
    m_hall.start(QStringLiteral(TESSEL_HALL_PROGRAM),
                 {QStringLiteral("--hubs"), QStringLiteral("1"), QStringLiteral("--peripherals"),
                  QStringLiteral("0"), QStringLiteral("--base"), address,
                  QStringLiteral("--export-polls"), QStringLiteral("0")});
    QByteArray said;
    const auto isOpen = [&] {
        said += m_hall.readAll();
        return said.contains("The hall is open");
    };
    QTRY_VERIFY_WITH_TIMEOUT(isOpen(), longestWaitMs);
    m_before.emplace();
    if (!m_before->isTaken()) {
        QSKIP("This system lets nobody look into a program's memory");
    }
    install();
    m_after.emplace();
}

void TestPasswordMemory::install()
{
    TesselDoc doc(nullptr);
    enterHubs(
        doc,
        {{.label = QStringLiteral("Hub"), .model = QStringLiteral("PX-HB"), .address = address}});
    FakeController controller;
    PageInstall page(&controller, &doc, nullptr);
    page.enterFrom(stepBefore);
    page.show();
    DialogAnswerer answers;
    answerDialogs(answers);
    press(buttonOf(page, "executeButton"));
    const QTreeWidget* list = tableOf(page, "hubList");
    QTRY_COMPARE_WITH_TIMEOUT(columnTexts(*list, "Status"), QStringList(QStringLiteral("Done")),
                              longestWaitMs);
    m_during.emplace();
}

void TestPasswordMemory::whileThePageIsThereOnlyTheFieldsHoldThePassword()
{
    const QByteArray wide = MemorySnapshot::wide(password);
    QCOMPARE(m_before->placesOf(wide).size(), 0);
    // The field and its confirmation for the first password, and that for the log-in.
    QCOMPARE(m_during->placesOf(wide).size(), 3);
    QCOMPARE(m_during->placesOf(password).size(), 0);
}

void TestPasswordMemory::afterwardsThePasswordIsGone()
{
    QCOMPARE(m_after->placesOf(MemorySnapshot::wide(password)).size(), 0);
    QCOMPARE(m_after->placesOf(password).size(), 0);
}

void TestPasswordMemory::theDigestIsNowhereButInTheTwoRequests()
{
    const QByteArray inBody = R"(": ")"; // what stands before it there, whatever else has changed
    for (const auto* snapshot : {&m_during, &m_after}) {
        for (const QByteArray& before : (*snapshot)->placesOf(digest)) {
            QVERIFY(before.endsWith(inBody));
        }
        for (QByteArray before : (*snapshot)->placesOf(MemorySnapshot::wide(digest))) {
            QVERIFY(before.replace('\0', "").endsWith(inBody));
        }
        QCOMPARE((*snapshot)->placesOf(rawDigest()).size(), 0);
    }
}

void TestPasswordMemory::cleanupTestCase()
{
    m_hall.terminate();
    m_hall.waitForFinished();
}

TESSEL_TEST_MAIN(TestPasswordMemory)

#include "tst_passwordmemory.moc"
