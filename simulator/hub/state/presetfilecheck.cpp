#include "presetfilecheck.h"

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

namespace {

constexpr int peripheralCount = 24;

/// The elements of the file as paths, and the attributes of "config".
struct Shape
{
    QStringList elements;
    QXmlStreamAttributes config;
    bool isWellFormed = false;
};

Shape shapeOf(const QByteArray& xml)
{
    Shape shape;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            shape.elements.append(reader.name().toString());
            if (reader.name() == u"config") {
                shape.config = reader.attributes();
            }
        }
    }
    shape.isWellFormed = !reader.hasError();
    return shape;
}

bool hasPrescribedElements(const Shape& shape)
{
    return shape.elements == QStringList{QStringLiteral("provisioning"), QStringLiteral("config")};
}

QStringList namesOf(const QXmlStreamAttributes& attributes)
{
    QStringList names;
    for (const QXmlStreamAttribute& attribute : attributes) {
        names.append(attribute.name().toString());
    }
    return names;
}

QStringList numbered(const QString& stem)
{
    QStringList names;
    for (int number = 1; number <= peripheralCount; ++number) {
        names.append(stem + QString::number(number));
    }
    return names;
}

QStringList prescribedNames(bool isHubFile, bool isNamed)
{
    QStringList names;
    if (isHubFile) {
        names += numbered(QStringLiteral("peripheral.mac-addr"));
        names += numbered(QStringLiteral("peripheral.position"));
    }
    if (isNamed) {
        names += {QStringLiteral("sys.systemname"), QStringLiteral("sys.systemname-mode")};
    }
    return names;
}

QString allowedValues(QStringView name, bool isHubFile)
{
    if (name.startsWith(u"peripheral.mac-addr")) {
        return QStringLiteral("(?:[0-9A-F]{2}(?::[0-9A-F]{2}){5})?");
    }
    if (name.startsWith(u"peripheral.position")) {
        return QStringLiteral("[12]");
    }
    if (name == u"sys.systemname-mode") {
        return isHubFile ? QStringLiteral("0") : QStringLiteral("[01]");
    }
    return QStringLiteral(".*");
}

std::optional<QString> attributeDifference(const QXmlStreamAttributes& config, bool isHubFile)
{
    const bool isNamed = config.hasAttribute(QLatin1String("sys.systemname"));
    if (namesOf(config) != prescribedNames(isHubFile, isNamed)) {
        return QStringLiteral("file: the attributes of \"config\" are not the prescribed ones in "
                              "their order");
    }
    for (const QXmlStreamAttribute& attribute : config) {
        const QRegularExpression values(
            QRegularExpression::anchoredPattern(allowedValues(attribute.name(), isHubFile)),
            QRegularExpression::DotMatchesEverythingOption);
        if (!values.match(attribute.value()).hasMatch()) {
            return QStringLiteral("file: unexpected value \"%1\" of \"%2\"")
                .arg(attribute.value(), attribute.name());
        }
    }
    return std::nullopt;
}

bool hasPrescribedLayout(const QByteArray& xml)
{
    return xml.startsWith("<provisioning>\n <config") && xml.endsWith("/>\n</provisioning>\n") &&
           xml.count('\n') == 3;
}

} // namespace

bool isPresetFile(const QByteArray& xml)
{
    const Shape shape = shapeOf(xml);
    return shape.isWellFormed && hasPrescribedElements(shape);
}

std::optional<QString> presetFileDifference(const QByteArray& xml, bool isHubFile)
{
    const Shape shape = shapeOf(xml);
    if (!shape.isWellFormed) {
        return QStringLiteral("file: not well-formed XML");
    }
    if (!hasPrescribedElements(shape)) {
        return QStringLiteral("file: expected \"provisioning\" with one \"config\" in it");
    }
    if (!hasPrescribedLayout(xml)) {
        return QStringLiteral("file: expected three lines, indented by one space per level");
    }
    return attributeDifference(shape.config, isHubFile);
}
