// Every preset file of 10 layouts for 4 hubs with 24 peripherals each, as the installation asks the
// document for them, beside writing the same bytes from ready lists.

#include "benchdocument.h"
#include "benchpair.h"
#include "benchrows.h"
#include "presetqueries.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

constexpr HallSize size{4, 96, 10};

QList<QByteArray> allFiles(IDocAccessor& doc)
{
    QList<QByteArray> files;
    for (int hub = 0; hub < size.hubs; ++hub) {
        for (int layout = 1; layout <= size.layouts; ++layout) {
            files.append(hubPresetFile(doc, benchAddress(hub), layout).value());
            const auto addresses = peripheralsOfHub(doc, benchAddress(hub), layout);
            for (const QString& address : addresses.value()) {
                files.append(peripheralPresetFile(doc, address)->content);
            }
        }
    }
    return files;
}

// The attributes of one file, ready to be written.
QXmlStreamAttributes attributesOf(const QByteArray& file)
{
    QXmlStreamReader reader(file);
    reader.readNextStartElement();
    reader.readNextStartElement();
    return reader.attributes();
}

QByteArray writeFile(const QXmlStreamAttributes& attributes)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(1);
    writer.writeStartElement(QStringLiteral("provisioning"));
    writer.writeStartElement(QStringLiteral("config"));
    writer.writeAttributes(attributes);
    writer.writeEndElement();
    writer.writeEndElement();
    return text.toUtf8();
}

} // namespace

void registerPresetFiles()
{
    const auto doc = std::make_shared<TesselDoc>(nullptr);
    fillDocument(*doc, size);
    QList<QXmlStreamAttributes> ready;
    for (const QByteArray& file : allFiles(*doc)) {
        ready.append(attributesOf(file));
    }
    registerPair(
        QStringLiteral("presetfiles"), 40,
        [ready](Stopwatch& watch) {
            QList<QByteArray> files;
            watch.start();
            for (const QXmlStreamAttributes& attributes : ready) {
                files.append(writeFile(attributes));
            }
            watch.stop();
        },
        [doc](Stopwatch& watch) {
            watch.start();
            const QList<QByteArray> files = allFiles(*doc);
            watch.stop();
        });
}
