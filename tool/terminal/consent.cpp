#include "consent.h"

#include "terminal.h"

#include <QFile>

#include <cstdio>

bool isAgreedTo(const QString& question, Terminal& terminal)
{
    terminal.say(question);
    QFile input;
    if (!terminal.flush() || !input.open(stdin, QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray answer = input.readLine().trimmed().toLower();
    return answer == "y" || answer == "yes";
}
