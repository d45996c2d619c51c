#include "devicenamevalidator.h"

#include <QRegularExpression>

namespace {

QRegularExpression namePattern()
{
    return QRegularExpression(QStringLiteral(R"([A-Za-z0-9\-]+)"));
}

/// Whether `whole` becomes `part` by leaving characters out.
bool isLeftOf(const QString& part, const QString& whole)
{
    qsizetype found = 0;
    for (const QChar character : whole) {
        if (found < part.size() && part.at(found) == character) {
            ++found;
        }
    }
    return found == part.size();
}

} // namespace

DeviceNameValidator::DeviceNameValidator(const QString& label, QObject* parent)
    : QRegularExpressionValidator(namePattern(), parent)
    , m_shown(label)
{
}

QValidator::State DeviceNameValidator::validate(QString& text, int& position) const
{
    const int cursor = position;
    const State state = QRegularExpressionValidator::validate(text, position);
    if (state == Invalid && mayStay(text)) {
        position = cursor;
        return Intermediate;
    }
    return state;
}

void DeviceNameValidator::textShown(const QString& text)
{
    m_shown.append(text);
}

bool DeviceNameValidator::mayStay(const QString& text) const
{
    return m_shown.contains(text) || isLeftOf(foreignPart(text), foreignPart(m_shown.last()));
}

/// What stands in `text` but not in names.
QString DeviceNameValidator::foreignPart(QString text) const
{
    return text.remove(regularExpression());
}
