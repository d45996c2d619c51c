#pragma once

#include <QStringList>
#include <QtGlobal>

/// Collects what is printed while it lives, instead of printing it. Only one may live at a time.
class PrintedLines
{
public:
    PrintedLines();
    ~PrintedLines();
    PrintedLines(const PrintedLines&) = delete;
    PrintedLines& operator=(const PrintedLines&) = delete;
    PrintedLines(PrintedLines&&) = delete;
    PrintedLines& operator=(PrintedLines&&) = delete;

    QStringList lines() const;

private:
    QtMessageHandler m_previous;
};
