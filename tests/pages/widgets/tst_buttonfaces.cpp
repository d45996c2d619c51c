#include "identifybutton.h"
#include "removebutton.h"
#include "svgbutton.h"
#include "tesselbutton.h"
#include "testcase.h"

#include <QFile>
#include <QPainter>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTest>

class TestButtonFaces : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thePicturesAreCompiledIn_data();
    void thePicturesAreCompiledIn();
    void identifyButtonHandsBackItsAddress();
    void identifyButtonIsDarkOnlyWhileHeld();
    void identifyButtonShowsItsIcon();
    void svgButtonClicks();
    void svgButtonShowsItsIconAndAGroundWhileHeld();
    void svgButtonLooksAsItsFileOnALightDesktop();
    void svgButtonIsInTheColorOfTexts();
    void svgButtonDiffersFromItsGroundWhateverTheColorOfTexts();
    void tesselButtonChecksOnEveryRelease();
    void tesselButtonPaintsAPlusSignWhileChecked();
    void setCheckedDoesNotClick();
    void removeButtonTurnsIntoRevertAndBack();
    void removeButtonPaintsItsStateItsFrameAndItsText();
    void setRemovedDoesNotClick();
    void removeButtonHintsRoomForItsText();
};

namespace {

const QString address = QStringLiteral("192.168.0.7");
const QColor face(0xCC, 0xCC, 0xCC);
const QColor red(0xCC, 0x33, 0x33);

QString identifyIcon()
{
    return QStringLiteral(":/image/icon_identify_bk.svg");
}

QString pencilIcon()
{
    return QStringLiteral(":/image/icon_edit_24.svg");
}

QImage picture(QWidget& widget)
{
    return widget.grab().toImage();
}

bool hasColorOtherThan(const QImage& image, const QColor& color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != color) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

void TestButtonFaces::thePicturesAreCompiledIn_data()
{
    QTest::addColumn<QString>("path");
    for (const char* name : {"icon_identify_bk", "icon_edit_24", "floor", "Well_done", "tessel"}) {
        QTest::addRow("%s", name) << QStringLiteral(":/image/%1.svg").arg(QLatin1String(name));
    }
}

void TestButtonFaces::thePicturesAreCompiledIn()
{
    QFETCH(const QString, path);
    QVERIFY(QFile::exists(path));
}

void TestButtonFaces::identifyButtonHandsBackItsAddress()
{
    IdentifyButton button(address);
    QCOMPARE(button.size(), QSize(20, 20));
    QCOMPARE(button.minimumSize(), button.maximumSize());
    QSignalSpy clicked(&button, SIGNAL(clicked(QString)));
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(clicked.size(), 0);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.first().first().toString(), address);
}

void TestButtonFaces::identifyButtonIsDarkOnlyWhileHeld()
{
    IdentifyButton button(address);
    QCOMPARE(picture(button).pixelColor(0, 0), QColor(Qt::lightGray));
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(picture(button).pixelColor(0, 0), QColor(Qt::darkGray));
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(picture(button).pixelColor(0, 0), QColor(Qt::lightGray));
}

void TestButtonFaces::identifyButtonShowsItsIcon()
{
    IdentifyButton button(address);
    QVERIFY(hasColorOtherThan(picture(button), QColor(Qt::lightGray)));
}

void TestButtonFaces::svgButtonClicks()
{
    SvgButton button(QStringLiteral(":/image/icon_edit_24.svg"));
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
}

void TestButtonFaces::svgButtonShowsItsIconAndAGroundWhileHeld()
{
    SvgButton button(identifyIcon());
    const QImage idle = picture(button);
    QVERIFY(hasColorOtherThan(idle, idle.pixelColor(0, 0)));
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(picture(button).pixelColor(0, 0), QColor(Qt::lightGray));
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(picture(button), idle);
}

void TestButtonFaces::svgButtonLooksAsItsFileOnALightDesktop()
{
    SvgButton button(pencilIcon());
    QPixmap icon(button.size());
    icon.fill(Qt::transparent);
    QPainter iconPainter(&icon);
    QSvgRenderer(pencilIcon()).render(&iconPainter, QRectF(button.rect()));
    iconPainter.end();
    QPixmap expected(button.size());
    expected.fill(button.palette().color(QPalette::Window));
    QPainter(&expected).drawPixmap(QPoint(), icon);
    QCOMPARE(picture(button), expected.toImage());
}

void TestButtonFaces::svgButtonIsInTheColorOfTexts()
{
    SvgButton button(pencilIcon());
    QPalette colors(Qt::black);
    colors.setColor(QPalette::Text, Qt::yellow);
    button.setPalette(colors);
    const QImage image = picture(button);
    bool found = false;
    for (int i = 0; i < image.width(); ++i) {
        found = found || image.pixelColor(i, i) == QColor(Qt::yellow);
    }
    QVERIFY(found);
}

void TestButtonFaces::svgButtonDiffersFromItsGroundWhateverTheColorOfTexts()
{
    SvgButton button(pencilIcon());
    QPalette colors(Qt::black);
    colors.setColor(QPalette::Text, Qt::black);
    button.setPalette(colors);
    QVERIFY(hasColorOtherThan(picture(button), colors.color(QPalette::Window)));
}

void TestButtonFaces::tesselButtonChecksOnEveryRelease()
{
    TesselButton button;
    QCOMPARE(button.size(), QSize(15, 15));
    QVERIFY(!button.isChecked());
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(button.isChecked());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!button.isChecked());
    QCOMPARE(clicked.size(), 2);
    QCOMPARE(clicked.first().first().toBool(), true);
    QCOMPARE(clicked.last().first().toBool(), false);
}

void TestButtonFaces::tesselButtonPaintsAPlusSignWhileChecked()
{
    TesselButton button;
    QVERIFY(!hasColorOtherThan(picture(button), face));
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(!hasColorOtherThan(picture(button), face.darker(200)));
    QTest::mouseRelease(&button, Qt::LeftButton);
    const QImage checked = picture(button);
    for (int i = 0; i < 15; ++i) {
        const QColor expected = i >= 2 && i <= 12 ? QColor(Qt::black) : face;
        QCOMPARE(checked.pixelColor(i, 7), expected);
        QCOMPARE(checked.pixelColor(7, i), expected);
    }
    QCOMPARE(checked.pixelColor(6, 6), face);
}

void TestButtonFaces::setCheckedDoesNotClick()
{
    TesselButton button;
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    button.setChecked(true);
    QVERIFY(button.isChecked());
    QCOMPARE(picture(button).pixelColor(7, 7), QColor(Qt::black));
    QCOMPARE(clicked.size(), 0);
}

void TestButtonFaces::removeButtonTurnsIntoRevertAndBack()
{
    RemoveButton button;
    QVERIFY(!button.isRemoved());
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(button.isRemoved());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!button.isRemoved());
    QCOMPARE(clicked.size(), 2);
    QCOMPARE(clicked.first().first().toBool(), true);
    QCOMPARE(clicked.last().first().toBool(), false);
}

void TestButtonFaces::removeButtonPaintsItsStateItsFrameAndItsText()
{
    RemoveButton button;
    button.resize(60, 22);
    const auto showsGround = [&](const QColor& ground) {
        const QImage image = picture(button);
        const QRgb frame = ground.darker(200).rgb();
        return image.pixel(3, 3) == ground.rgb() && image.pixel(0, 0) == frame &&
               image.pixel(59, 21) == frame && hasColorOtherThan(image.copy(4, 4, 52, 14), ground);
    };
    QVERIFY(showsGround(face));
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(showsGround(face.darker(200)));
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(showsGround(red));
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(showsGround(red.darker(200)));
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(showsGround(face));
}

void TestButtonFaces::setRemovedDoesNotClick()
{
    RemoveButton button;
    button.resize(60, 22);
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    button.setRemoved(true);
    QCOMPARE(picture(button).pixelColor(3, 3), red);
    button.setRemoved(false);
    QCOMPARE(picture(button).pixelColor(3, 3), face);
    QCOMPARE(clicked.size(), 0);
}

void TestButtonFaces::removeButtonHintsRoomForItsText()
{
    const RemoveButton button;
    QVERIFY(button.sizeHint().width() >
            button.fontMetrics().horizontalAdvance(QStringLiteral("Remove")));
    QVERIFY(button.sizeHint().height() > button.fontMetrics().ascent());
}

TESSEL_TEST_MAIN(TestButtonFaces)
#include "tst_buttonfaces.moc"
