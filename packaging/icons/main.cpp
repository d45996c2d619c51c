// Paints a drawing in the sizes that desktops ask for:
//
//   tessel-icons DRAWING.svg FOLDER NAME SIZE...
//
// leaves FOLDER/SIZExSIZE/apps/NAME.png. It runs while the project is built.

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <cstdlib>

namespace {

QImage painted(QSvgRenderer& drawing, int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    return image;
}

bool save(const QImage& image, const QString& folder, const QString& name)
{
    const QString place = QStringLiteral("%1/%2x%2/apps").arg(folder).arg(image.width());
    return QDir().mkpath(place) && image.save(QStringLiteral("%1/%2.png").arg(place, name));
}

int complain(const QString& what)
{
    QTextStream(stderr) << "tessel-icons: " << what << Qt::endl;
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QSvgRenderer drawing(arguments.value(1));
    if (!drawing.isValid()) {
        return complain(arguments.value(1) + QStringLiteral(": no drawing"));
    }
    for (const QString& size : arguments.mid(4)) {
        const QString& name = arguments.at(3);
        if (size.toInt() <= 0 || !save(painted(drawing, size.toInt()), arguments.at(2), name)) {
            return complain(QStringLiteral("size %1 could not be written").arg(size));
        }
    }
    return EXIT_SUCCESS;
}
