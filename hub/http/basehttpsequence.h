#pragma once

#include "ihttpsequence.h"

#include <QObject>
#include <QString>

/// Base of the steps: knows the hub.
class BaseHttpSequence : public QObject, public IHttpSequence
{
    Q_OBJECT

public:
    /// `address` is dotted IPv4 text.
    BaseHttpSequence(const QString& address, QObject* parent);

protected:
    const QString& address() const { return m_address; }

private:
    QString m_address;
};
