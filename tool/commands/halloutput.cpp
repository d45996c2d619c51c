#include "halloutput.h"

#include "outputfile.h"

QString hallOutputFault(const QString& path, const QString& input)
{
    return path.endsWith(u".tessel", Qt::CaseInsensitive)
               ? outputFault(path, {input})
               : path + QStringLiteral(": its name does not end in .tessel, and the wizard could "
                                       "not open it");
}
