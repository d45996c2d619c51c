#include "console.h"
#include "entry.h"
#include "helptext.h"

#include <cstdlib>

int main(int argc, char** argv)
{
    // Before there is an application, which would want a display.
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    if (const std::optional<QString> answer = answerTo(arguments)) {
        return writeToOutput(*answer) ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    return runWizard(argc, argv);
}
