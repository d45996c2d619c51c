#include "firstpassword.h"
#include "testcase.h"

#include <QTest>

/// What a hub's first password may be.
class TestFirstPassword : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fourToSixteenLettersAndDigitsAreOne_data();
    void fourToSixteenLettersAndDigitsAreOne();
};

void TestFirstPassword::fourToSixteenLettersAndDigitsAreOne_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<bool>("isPossible");
    const auto row = [](const char* password, bool isPossible) {
        QTest::newRow(password) << QString::fromUtf8(password) << isPossible;
    };
    row("", false);
    row("abc", false);
    row("abcd", true);
    row("A1b2C3d4E5f6G7h8", true);
    row("A1b2C3d4E5f6G7h8i", false);
    row("abc ", false);
    row("ab-cd", false);
    row("abcd\n", false);
    row("Gr\xC3\xBCn1", false);
}

void TestFirstPassword::fourToSixteenLettersAndDigitsAreOne()
{
    QFETCH(const QString, password);
    QFETCH(const bool, isPossible);
    QCOMPARE(FirstPassword::isPossible(password), isPossible);
}

TESSEL_TEST_MAIN(TestFirstPassword)
#include "tst_firstpassword.moc"
