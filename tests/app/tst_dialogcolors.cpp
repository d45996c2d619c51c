#include "alldialogs.h"
#include "contrast.h"
#include "testcase.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x2A, 0x2E, 0x32));
    const QColor text(0xFC, 0xFC, 0xFC);
    const QColor list(0x1B, 0x1E, 0x20);
    palette.setColor(QPalette::Base, list);
    palette.setColor(QPalette::AlternateBase, list);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Active, role, text);
        palette.setColor(QPalette::Inactive, role, text);
    }
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0xAE, 0xE9));
    palette.setColor(QPalette::PlaceholderText, QColor(0xA1, 0xA9, 0xB1, 0x80));
    return palette;
}

/// What the eye sees of a colour that lets the ground through.
QColor laidOver(const QColor& color, const QColor& ground)
{
    const auto mix = [&color](float over, float under) {
        return over * color.alphaF() + under * (1 - color.alphaF());
    };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

void checkPair(const QWidget* widget, QPalette::ColorRole text, QPalette::ColorRole ground)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const QColor below = widget->palette().color(group, ground);
        const QColor seen = laidOver(widget->palette().color(group, text), below);
        const QByteArray pair = widget->objectName().toUtf8() + ' ' + seen.name().toUtf8() +
                                " on " + below.name().toUtf8();
        QVERIFY2(contrast(seen, below) >= 4.5, pair.constData());
    }
}

void checkColors(const QDialog& dialog)
{
    for (const auto* label : dialog.findChildren<QLabel*>()) {
        // Two labels are red, or white on red, to be seen first, whatever the palette.
        if (label->styleSheet().isEmpty()) {
            checkPair(label, QPalette::WindowText, QPalette::Window);
        }
    }
    for (const auto* button : dialog.findChildren<QPushButton*>()) {
        checkPair(button, QPalette::ButtonText, QPalette::Button);
    }
    for (const auto* field : dialog.findChildren<QLineEdit*>()) {
        checkPair(field, QPalette::Text, QPalette::Base);
        checkPair(field, QPalette::PlaceholderText, QPalette::Base);
        checkPair(field, QPalette::HighlightedText, QPalette::Highlight);
    }
    for (const auto* list : dialog.findChildren<QTreeWidget*>()) {
        checkPair(list, QPalette::Text, QPalette::Base);
        checkPair(list, QPalette::HighlightedText, QPalette::Highlight);
    }
}

} // namespace

class TestDialogColors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(m_light); }
    void everyTextCanBeReadWithEase_data();
    void everyTextCanBeReadWithEase();
    void whatIsPaintedInAnEmptyListCanBeReadWithEase();
    void aSelectedRowShowsWhetherTheKeyboardIsInIt();

private:
    QPalette m_light = QApplication::palette();
};

void TestDialogColors::everyTextCanBeReadWithEase_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : dialogNames()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestDialogColors::everyTextCanBeReadWithEase()
{
    QFETCH(const QString, name);
    const auto window = makeWindow();
    QDialog* dialog = makeDialog(name, window.get());
    dialog->show();
    checkColors(*dialog);
    for (int i = 0; i < 2; ++i) {
        QApplication::setPalette(darkPalette());
        QCoreApplication::processEvents();
        checkColors(*dialog);
        QApplication::setPalette(m_light);
        QCoreApplication::processEvents();
        checkColors(*dialog);
    }
    QApplication::setPalette(darkPalette());
    QDialog* later = makeDialog(name, window.get());
    later->show();
    checkColors(*later);
}

void TestDialogColors::whatIsPaintedInAnEmptyListCanBeReadWithEase()
{
    const auto window = makeWindow();
    QDialog* dialog = makeDialog(QStringLiteral("no network"), window.get());
    dialog->show();
    for (const QPalette& palette : {m_light, darkPalette()}) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        const QColor ground = palette.color(QPalette::Base);
        const auto* list = dialog->findChild<QTreeWidget*>();
        const QImage picture = list->viewport()->grab().toImage();
        double most = 1;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                most = std::max(most, contrast(picture.pixelColor(x, y), ground));
            }
        }
        QVERIFY2(most >= 4.5, qPrintable(QString::number(most)));
    }
}

void TestDialogColors::aSelectedRowShowsWhetherTheKeyboardIsInIt()
{
    const auto window = makeWindow();
    QDialog* dialog = makeDialog(QStringLiteral("network"), window.get());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    auto* list = dialog->findChild<QTreeWidget*>();
    for (const QPalette& palette : {m_light, darkPalette()}) {
        QApplication::setPalette(palette);
        list->setCurrentItem(list->topLevelItem(1));
        list->clearFocus();
        QCoreApplication::processEvents();
        const QImage before = list->viewport()->grab().toImage();
        list->setFocus(Qt::TabFocusReason);
        const QImage after = list->viewport()->grab().toImage();
        const QPoint corner = list->visualItemRect(list->topLevelItem(1)).topLeft();
        QVERIFY(contrast(before.pixelColor(corner), after.pixelColor(corner)) >= 3.0);
    }
}

TESSEL_TEST_MAIN(TestDialogColors)
#include "tst_dialogcolors.moc"
