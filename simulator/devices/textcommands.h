#pragma once

#include "delivery.h"
#include "exchange.h"
#include "fault.h"
#include "halldescription.h"

#include <optional>

/// The answer of a device to one line of its text-command port.
struct TextAnswer
{
    Exchange exchange = Exchange::UnknownCommand;
    /// The answer, with its line feed.
    QByteArray answer = {};
    /// A notification that follows a moment later; empty: none.
    QByteArray notification = {};
};

/// The text commands of a device without sockets, and what they change in it.
class TextCommands
{
public:
    explicit TextCommands(const DeviceDescription& description);

    /// What the line (without its line feed) asks for.
    static Exchange exchangeOf(const QByteArray& line);

    /// The preset that the line asks to recall; nothing when it asks for something else.
    static std::optional<int> recallNumber(const QByteArray& line);

    /// Answers one line and carries it out.
    TextAnswer answer(const QByteArray& line);

    /// The active preset; 0: none.
    int currentPreset() const { return m_currentPreset; }
    void setCurrentPreset(int number) { m_currentPreset = number; }
    /// How often the device was asked to show itself.
    int identifyCount() const { return m_identifyCount; }

private:
    QByteArray value(Exchange exchange) const;
    QByteArray answerTo(Exchange exchange, const QByteArray& line);

    DeviceDescription m_description;
    int m_currentPreset = 0;
    int m_identifyCount = 0;
};

/// The answer of a device that was asked something and does not understand or refuses it.
QByteArray errorAnswer(const QByteArray& line);

/// Turns an answer into what goes onto the wire under these faults.
Delivery planAnswer(const TextAnswer& answer, const QList<Fault>& faults);
