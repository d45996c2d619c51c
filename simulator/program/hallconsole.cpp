#include "hallconsole.h"

#include "hallreport.h"

#include <QTime>

HallConsole::HallConsole(const Hall& hall, QTextStream& out, QObject* parent)
    : QObject(parent)
    , m_hall(hall)
    , m_out(out)
{
    connect(&hall, SIGNAL(noticed(QString, QString)), this, SLOT(showEvent(QString, QString)));
    connect(&hall, SIGNAL(differenceFound(QString, QString)), this,
            SLOT(showDifference(QString, QString)));
    connect(&hall, SIGNAL(queryHeard(QString)), this, SLOT(showQuery(QString)));
}

void HallConsole::showHall()
{
    m_out << "The hall is open.\n\n"
          << hallTable(m_hall.description()) << '\n'
          << howToStart(m_hall.description()) << "\nCtrl+C closes the hall.\n\n";
    m_out.flush();
}

void HallConsole::showSummary()
{
    m_out << "\nThe hall is closed.\n" << hallSummary(m_hall);
    m_out.flush();
}

void HallConsole::showEvent(const QString& address, const QString& text)
{
    const SimulatedDevice* device = m_hall.device(address);
    const QString label = device == nullptr ? QString() : device->description().label;
    m_out << QTime::currentTime().toString(QStringLiteral("HH:mm:ss")) << "  "
          << address.leftJustified(15) << "  " << label.leftJustified(16) << "  " << text << '\n';
    m_out.flush();
}

void HallConsole::showDifference(const QString& address, const QString& text)
{
    showEvent(address, QStringLiteral("NOT AS PRESCRIBED: ") + text);
}

void HallConsole::showQuery(const QString& sender)
{
    showEvent(sender, QStringLiteral("asks which devices there are"));
}
