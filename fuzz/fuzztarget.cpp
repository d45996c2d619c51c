#include "fuzztarget.h"

#include <QString>
#include <QtGlobal>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

// What Qt has to say of broken inputs is no finding and would slow the fuzzer down. A fatal message
// ends the run, a failed assertion among them.
void passFatalMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

} // namespace

void require(bool holds, const char* promise)
{
    if (!holds) {
        std::fprintf(stderr, "broken promise: %s\n", promise);
        std::abort();
    }
}

// The fuzzer and the sanitizers call what follows by name.
// NOLINTBEGIN(bugprone-reserved-identifier): the names are theirs.

// Qt was built without sanitizers, so its containers are not annotated. The memory held back after
// it was freed counts against the fuzzer's limit.
extern "C" const char* __asan_default_options()
{
    return "detect_container_overflow=0:quarantine_size_mb=32";
}

extern "C" const char* __ubsan_default_options()
{
    return "print_stacktrace=1";
}

// NOLINTEND(bugprone-reserved-identifier)

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    qInstallMessageHandler(passFatalMessage);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    examine(QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size)));
    return 0;
}
