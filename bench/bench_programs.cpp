// Runs two programs by turns, floor and ours, and records the time that each takes to its end and
// the most memory that it held:
//
//   bench_programs ROW TURNS FLOOR OURS [ARG...]
//
// Both get the arguments; the memory goes to the row "ROWmemory".

#include "samplelog.h"

#include <QElapsedTimer>
#include <QString>

#include <cstdlib>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr double kibPerMib = 1024.0;

struct ProgramCost
{
    double milliseconds = 0;
    double mebibytes = 0;
    bool succeeded = false;
};

ProgramCost run(const char* program, char** arguments)
{
    QElapsedTimer timer;
    timer.start();
    pid_t pid = 0;
    if (posix_spawn(&pid, program, nullptr, nullptr, arguments, environ) != 0) {
        return {};
    }
    int status = 0;
    rusage used{};
    wait4(pid, &status, 0, &used);
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    const bool succeeded = WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
    return {milliseconds, double(used.ru_maxrss) / kibPerMib, succeeded};
}

bool runAndRecord(const QString& row, const QString& side, const char* program, char** arguments,
                  bool warm)
{
    const ProgramCost cost = run(program, arguments);
    if (warm && cost.succeeded) {
        recordSample(row + side, cost.milliseconds);
        recordSample(row + QStringLiteral("memory") + side, cost.mebibytes);
    }
    return cost.succeeded;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 5) {
        return EXIT_FAILURE;
    }
    const QString row = QString::fromLocal8Bit(argv[1]);
    const int turns = std::atoi(argv[2]);
    // What the programs see as their own name is the last word before their arguments.
    char** arguments = argv + 4;
    // Turn 0 only brings the files of both into memory.
    for (int turn = 0; turn <= turns; ++turn) {
        if (!runAndRecord(row, QStringLiteral("/floor"), argv[3], arguments, turn > 0) ||
            !runAndRecord(row, QStringLiteral("/ours"), argv[4], arguments, turn > 0)) {
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
