// The least that the introduction page can be shown with: a window with three labels and the same
// picture, linked to the same Qt modules.

#include "firstpaint.h"

#include <QApplication>
#include <QDomDocument>
#include <QLabel>
#include <QSvgWidget>
#include <QTcpSocket>
#include <QVBoxLayout>

namespace {

QString text(int length)
{
    return QStringLiteral("This wizard helps to divide and combine rooms. ").repeated(length);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    exitAfterFirstPicture();
    // Mentioned so that both modules are loaded.
    const QDomDocument document;
    const char* const socket = QTcpSocket::staticMetaObject.className();
    QWidget window;
    window.setMinimumSize(800, 600);
    window.setWindowTitle(QLatin1String(socket) + document.nodeName());
    auto* layout = new QVBoxLayout(&window);
    for (const int length : {2, 8, 7}) {
        auto* label = new QLabel(text(length), &window);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addWidget(new QSvgWidget(QStringLiteral(":/image/floor.svg"), &window));
    window.show();
    return QApplication::exec();
}
