// The resume file of 250 devices and 10 layouts, beside a bare QDomDocument of the same elements
// behind the same QDataStream. Both replace the file safely, so both wait for the disk; that is no
// processor time.

#include "benchdocument.h"
#include "benchpair.h"
#include "benchrows.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QDataStream>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QPixmap>
#include <QSaveFile>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr HallSize size{4, 246, 10};

// One element with what is below it, as plain lists.
struct BareElement
{
    QString tag;
    QList<std::pair<QString, QString>> attributes;
    QList<BareElement> children;
};

struct BareFile
{
    BareElement root;
    QList<QPixmap> pictures;
};

QString readText(const QString& path, QList<QPixmap>& pictures)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QDataStream stream(&file);
    QString text;
    qint64 count = 0;
    stream >> text >> count;
    for (qint64 index = 0; index < count; ++index) {
        qint32 number = 0;
        QString group;
        QPixmap picture;
        stream >> number >> group >> picture;
        pictures.append(picture);
    }
    return text;
}

BareElement readElement(const QDomElement& element)
{
    BareElement read{element.tagName(), {}, {}};
    const QDomNamedNodeMap attributes = element.attributes();
    for (int index = 0; index < attributes.length(); ++index) {
        const QDomAttr attribute = attributes.item(index).toAttr();
        read.attributes.append({attribute.name(), attribute.value()});
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        read.children.append(readElement(child));
    }
    return read;
}

BareFile load(const QString& path)
{
    BareFile file;
    QDomDocument xml;
    xml.setContent(readText(path, file.pictures));
    file.root = readElement(xml.documentElement());
    return file;
}

QDomElement write(QDomDocument& xml, const BareElement& element)
{
    QDomElement written = xml.createElement(element.tag);
    for (const auto& [name, value] : element.attributes) {
        written.setAttribute(name, value);
    }
    for (const BareElement& child : element.children) {
        written.appendChild(write(xml, child));
    }
    return written;
}

void save(const QString& path, const BareFile& content)
{
    QDomDocument xml;
    xml.appendChild(write(xml, content.root));
    QSaveFile file(path);
    file.open(QIODevice::WriteOnly);
    QDataStream stream(&file);
    stream << xml.toString(1) << qint64(content.pictures.size());
    for (const QPixmap& picture : content.pictures) {
        stream << qint32(1) << QStringLiteral("1/2/3/4") << picture;
    }
    file.commit();
}

struct Desk
{
    // Beside the build: a folder in memory would not wait for the disk.
    QTemporaryDir folder{QDir::currentPath() + QStringLiteral("/bench-XXXXXX")};
    TesselDoc doc{nullptr};
    BareFile bare;

    QString path(const QString& name) const { return folder.filePath(name); }
};

std::shared_ptr<Desk> makeDesk()
{
    auto desk = std::make_shared<Desk>();
    fillDocument(desk->doc, size);
    desk->doc.saveResume(desk->path(QStringLiteral("ours")));
    desk->bare = load(desk->path(QStringLiteral("ours")));
    return desk;
}

void registerSave(const std::shared_ptr<Desk>& desk)
{
    registerPair(
        QStringLiteral("save"), 30,
        [desk](Stopwatch& watch) {
            watch.start();
            save(desk->path(QStringLiteral("floor")), desk->bare);
            watch.stop();
        },
        [desk](Stopwatch& watch) {
            watch.start();
            desk->doc.saveResume(desk->path(QStringLiteral("ours")));
            watch.stop();
        });
}

void registerLoad(const std::shared_ptr<Desk>& desk)
{
    registerPair(
        QStringLiteral("load"), 30,
        [desk](Stopwatch& watch) {
            watch.start();
            load(desk->path(QStringLiteral("ours")));
            watch.stop();
        },
        [desk](Stopwatch& watch) {
            TesselDoc doc(nullptr);
            fillDocument(doc, {size.hubs, size.peripherals, 0});
            watch.start();
            doc.loadResume(desk->path(QStringLiteral("ours")));
            watch.stop();
        });
}

} // namespace

void registerResumeFile()
{
    const std::shared_ptr<Desk> desk = makeDesk();
    registerSave(desk);
    registerLoad(desk);
}
