#include "devicenamevalidator.h"

#include "devicetexts.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// What came into `text` when one piece of `before` was replaced, as by every edit.
QString inserted(const QString& text, const QString& before)
{
    const qsizetype shorter = std::min(text.size(), before.size());
    qsizetype head = 0;
    while (head < shorter && text.at(head) == before.at(head)) {
        ++head;
    }
    qsizetype tail = 0;
    while (tail < shorter - head && *(text.crbegin() + tail) == *(before.crbegin() + tail)) {
        ++tail;
    }
    return text.sliced(head, text.size() - head - tail);
}

} // namespace

DeviceNameValidator::DeviceNameValidator(const QString& label, QObject* parent)
    : QRegularExpressionValidator(QRegularExpression(deviceNamePattern()), parent)
    , m_label(label)
    , m_shown(label)
{
}

QValidator::State DeviceNameValidator::validate(QString& text, int& position) const
{
    const int cursor = position;
    const State state = QRegularExpressionValidator::validate(text, position);
    if (state != Invalid) {
        return state;
    }
    position = cursor;
    if (text == m_label) {
        return Acceptable;
    }
    return mayStay(text) ? Intermediate : Invalid;
}

void DeviceNameValidator::textShown(const QString& text)
{
    m_shown.append(text);
}

bool DeviceNameValidator::mayStay(const QString& text) const
{
    return m_shown.contains(text) ||
           inserted(text, m_shown.last()).remove(regularExpression()).isEmpty();
}
