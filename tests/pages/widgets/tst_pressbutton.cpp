#include "identifybutton.h"
#include "removebutton.h"
#include "svgbutton.h"
#include "tesselbutton.h"
#include "testcase.h"

#include <QAccessible>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

class TestPressButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thePicturesAreCompiledIn_data();
    void thePicturesAreCompiledIn();
};

void TestPressButton::thePicturesAreCompiledIn_data()
{
    QTest::addColumn<QString>("path");
    for (const char* name : {"icon_identify_bk", "icon_edit_24", "floor", "Well_done", "tessel"}) {
        QTest::addRow("%s", name) << QStringLiteral(":/image/%1.svg").arg(QLatin1String(name));
    }
}

void TestPressButton::thePicturesAreCompiledIn()
{
    QFETCH(const QString, path);
    QVERIFY(QFile::exists(path));
}

TESSEL_TEST_MAIN(TestPressButton)
#include "tst_pressbutton.moc"
