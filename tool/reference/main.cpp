// Fills the commands of tesselctl into a file that people wrote:
//
//   tesselctl-reference TEMPLATE OUTPUT
//
// It runs while the project is built, so that manual page and shell know every command and option
// that the program knows.

#include "commandreference.h"

#include <QFile>
#include <QTextStream>

#include <cstdlib>

namespace {

int complain(const QFile& file)
{
    QTextStream(stderr) << "tesselctl-reference: " << file.fileName() << ": " << file.errorString()
                        << Qt::endl;
    return EXIT_FAILURE;
}

int fill(QFile& source, QFile& output)
{
    if (!source.open(QIODevice::ReadOnly)) {
        return complain(source);
    }
    const QByteArray text = filledIn(QString::fromUtf8(source.readAll()), allCommands()).toUtf8();
    const bool isWritten = output.open(QIODevice::WriteOnly) && output.write(text) == text.size();
    return isWritten && output.flush() ? EXIT_SUCCESS : complain(output);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        QTextStream(stderr) << "Usage: tesselctl-reference TEMPLATE OUTPUT" << Qt::endl;
        return EXIT_FAILURE;
    }
    QFile source(QString::fromLocal8Bit(argv[1]));
    QFile output(QString::fromLocal8Bit(argv[2]));
    return fill(source, output);
}
