#include "printedlines.h"

namespace {

QStringList& collected()
{
    static QStringList list;
    return list;
}

void collect(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    collected().append(text);
}

} // namespace

PrintedLines::PrintedLines()
{
    collected().clear();
    m_previous = qInstallMessageHandler(collect);
}

PrintedLines::~PrintedLines()
{
    qInstallMessageHandler(m_previous);
}

QStringList PrintedLines::lines() const
{
    return collected();
}
