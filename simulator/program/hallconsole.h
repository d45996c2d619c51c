#pragma once

#include "hall.h"

#include <QObject>
#include <QTextStream>

/// Tells a person at a terminal what goes on in a hall, one line per event.
class HallConsole : public QObject
{
    Q_OBJECT

public:
    /// The hall and the stream stay the caller's and must outlive the console.
    HallConsole(const Hall& hall, QTextStream& out, QObject* parent = nullptr);

    /// Prints the devices and how the wizard is started for them.
    void showHall();
    /// Prints what came of it all.
    void showSummary();

public Q_SLOTS:
    void showEvent(const QString& address, const QString& text);
    void showDifference(const QString& address, const QString& text);
    void showQuery(const QString& sender);

private:
    const Hall& m_hall;
    QTextStream& m_out;
};
