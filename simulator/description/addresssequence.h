#pragma once

#include <QString>

/// Counts IPv4 addresses upwards, passing over those that end in 0 or 255.
class AddressSequence
{
public:
    /// Begins at `first`; a text that is no IPv4 address gives empty texts only.
    explicit AddressSequence(const QString& first);

    /// The next address, `first` at the first call.
    QString next();

private:
    quint32 m_next = 0;
    bool m_isValid = false;
};
