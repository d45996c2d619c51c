#include "passwordfile.h"
#include "testcase.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// Passwords from a file: what is taken, what is refused, and that no password is ever told.
class TestPasswordFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void passwordsAreTheRestOfTheirLines();
    void linesOfAWindowsEditorAreTaken();
    void whatIsNoSuchFileIsNamedWithItsLineAndWithoutWhatItHolds_data();
    void whatIsNoSuchFileIsNamedWithItsLineAndWithoutWhatItHolds();
    void aFileThatOthersMayOpenIsRefused_data();
    void aFileThatOthersMayOpenIsRefused();
    void aFileThatIsNotThereIsNamed();
    void aFileThatNeverEndsIsRefused();

private:
    PasswordReading read(const QByteArray& bytes,
                         QFileDevice::Permissions permissions = QFileDevice::ReadOwner |
                                                                QFileDevice::WriteOwner) const;
    QString path() const { return m_folder.filePath(QStringLiteral("passwords")); }

    QTemporaryDir m_folder;
};

PasswordReading TestPasswordFile::read(const QByteArray& bytes,
                                       QFileDevice::Permissions permissions) const
{
    QFile::remove(path());
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() ||
        !file.setPermissions(permissions)) {
        return {{}, QStringLiteral("the test could not write it")};
    }
    file.close();
    return readPasswordFile(path());
}

void TestPasswordFile::passwordsAreTheRestOfTheirLines()
{
    const PasswordReading reading = read("# the hubs of hall 3\n"
                                         "\n"
                                         "  \t\n"
                                         "10.0.0.1 secret7\n"
                                         "10.0.0.2  two  blanks \n"
                                         "10.0.0.3\tGr\xC3\xBCn#\n"
                                         "10.0.0.4  ");
    QCOMPARE(reading.fault, QString());
    QCOMPARE(reading.passwords.size(), 4);
    QCOMPARE(reading.passwords.value(QStringLiteral("10.0.0.1")), QStringLiteral("secret7"));
    QCOMPARE(reading.passwords.value(QStringLiteral("10.0.0.2")), QStringLiteral(" two  blanks "));
    QCOMPARE(reading.passwords.value(QStringLiteral("10.0.0.3")), QStringLiteral("Gr\u00FCn#"));
    QCOMPARE(reading.passwords.value(QStringLiteral("10.0.0.4")), QStringLiteral(" "));
}

void TestPasswordFile::linesOfAWindowsEditorAreTaken()
{
    const PasswordReading reading = read("\r\n10.0.0.1 secret7\r\n");
    QCOMPARE(reading.fault, QString());
    QCOMPARE(reading.passwords.value(QStringLiteral("10.0.0.1")), QStringLiteral("secret7"));
}

void TestPasswordFile::whatIsNoSuchFileIsNamedWithItsLineAndWithoutWhatItHolds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a password alone")
        << QByteArray("10.0.0.1 a\nsecret7\n")
        << QStringLiteral("line 2: it does not begin with an IPv4 address");
    QTest::newRow("a password first")
        << QByteArray("secret7 10.0.0.1\n")
        << QStringLiteral("line 1: it does not begin with an IPv4 address");
    QTest::newRow("a blank first")
        << QByteArray(" 10.0.0.1 secret7\n")
        << QStringLiteral("line 1: it does not begin with an IPv4 address");
    QTest::newRow("an address of another form")
        << QByteArray("10.1 secret7\n")
        << QStringLiteral("line 1: it does not begin with an IPv4 address");
    QTest::newRow("an address alone")
        << QByteArray("#\n10.0.0.1\n")
        << QStringLiteral("line 2: there is no password behind the address");
    QTest::newRow("an address and a blank")
        << QByteArray("10.0.0.1 \r\n10.0.0.2 secret7\n")
        << QStringLiteral("line 1: there is no password behind the address");
    QTest::newRow("an address twice") << QByteArray("10.0.0.1 a\n10.0.0.1 secret7\n")
                                      << QStringLiteral("line 2: an earlier line has this address");
    QTest::newRow("no UTF-8") << QByteArray("10.0.0.1 secret7\xFF\n")
                              << QStringLiteral("it is no text in UTF-8");
}

void TestPasswordFile::whatIsNoSuchFileIsNamedWithItsLineAndWithoutWhatItHolds()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    const PasswordReading reading = read(bytes);
    QCOMPARE(reading.fault, path() + QStringLiteral(": ") + reason);
    QVERIFY(reading.passwords.isEmpty());
    QVERIFY(!reading.fault.contains(u"secret7"));
}

void TestPasswordFile::aFileThatOthersMayOpenIsRefused_data()
{
    QTest::addColumn<int>("others");
    QTest::newRow("0640") << int(QFileDevice::ReadGroup);
    QTest::newRow("0620") << int(QFileDevice::WriteGroup);
    QTest::newRow("0610") << int(QFileDevice::ExeGroup);
    QTest::newRow("0604") << int(QFileDevice::ReadOther);
    QTest::newRow("0602") << int(QFileDevice::WriteOther);
    QTest::newRow("0601") << int(QFileDevice::ExeOther);
}

void TestPasswordFile::aFileThatOthersMayOpenIsRefused()
{
#ifdef Q_OS_WIN
    QSKIP("this system has no permissions that are told by a file alone");
#endif
    QFETCH(const int, others);
    const PasswordReading reading =
        read("10.0.0.1 secret7\n",
             QFileDevice::Permissions(others) | QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    QVERIFY2(reading.fault.startsWith(path()) && reading.fault.contains(u"chmod 600"),
             qPrintable(reading.fault));
    QVERIFY(reading.passwords.isEmpty());
}

void TestPasswordFile::aFileThatIsNotThereIsNamed()
{
    const QString none = m_folder.filePath(QStringLiteral("none"));
    const PasswordReading reading = readPasswordFile(none);
    QVERIFY2(reading.fault.startsWith(none + QStringLiteral(": ")), qPrintable(reading.fault));
}

void TestPasswordFile::aFileThatNeverEndsIsRefused()
{
    const PasswordReading reading = read(QByteArray((1 << 20) + 1, '\n'));
    QCOMPARE(reading.fault, path() + QStringLiteral(": it is too large for a file of passwords"));
}

TESSEL_TEST_MAIN(TestPasswordFile)
#include "tst_passwordfile.moc"
