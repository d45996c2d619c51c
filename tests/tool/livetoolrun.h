#pragma once

#include "toolrun.h"

#include <QProcess>

/// The built tool beside a hall that this test serves: the event loop goes on while it runs.
class LiveToolRun
{
public:
    /// Whether anybody reads what it writes; otherwise its pipes are broken from the start.
    enum class Reader
    {
        There,
        Gone
    };

    /// Whether this system has pipes that are broken and terminals that tell of their end;
    /// otherwise there is no Reader::Gone and no closeTerminal().
    static bool knowsLostTerminals();

    /// Starts it, with this as all that its user types.
    explicit LiveToolRun(const QStringList& arguments, const QByteArray& typed = {},
                         Reader reader = Reader::There);
    ~LiveToolRun();

    /// Waits until it has said this; false when that never comes.
    bool hasSaid(const QString& words);

    /// Presses Ctrl+C.
    void interrupt();

    /// Tells it that its terminal is closed. The system does so, and the shell once more.
    void closeTerminal();

    /// Waits for its end.
    ToolRun ended();

    /// Whether it was ended from outside.
    bool isKilled() const;

private:
    QProcess m_program;
    QString m_said;
};
