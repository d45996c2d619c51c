// Prints the table of what was measured: bench_table SAMPLES INSTRUCTIONS

#include "benchtable.h"

#include <QTextStream>

int main(int argc, char** argv)
{
    if (argc != 3) {
        return 1;
    }
    QTextStream(stdout) << formatHeading()
                        << formatTable(readSamples(QString::fromLocal8Bit(argv[1])),
                                       readSamples(QString::fromLocal8Bit(argv[2])));
    return 0;
}
