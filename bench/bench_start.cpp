// The wizard from its start to the painted introduction page.

#include "entry.h"
#include "firstpaint.h"

#include <QCoreApplication>

Q_COREAPP_STARTUP_FUNCTION(exitAfterFirstPicture)

int main(int argc, char** argv)
{
    return runWizard(argc, argv);
}
