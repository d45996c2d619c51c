// A whole run of the nine steps against a running hall, as the entry function builds the wizard:
//
//   bench_stall [the wizard's own arguments]
//
// Prints how long the event loop was held up at worst.

#include "entry.h"
#include "stallplayer.h"

#include <QCoreApplication>

namespace {

void startPlayer()
{
    (new StallPlayer(QCoreApplication::instance()))->start();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startPlayer)

int main(int argc, char** argv)
{
    return runWizard(argc, argv);
}
