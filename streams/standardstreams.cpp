#include "standardstreams.h"

#ifdef Q_OS_WIN

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

StandardStreams::StandardStreams()
    : m_before(::GetConsoleOutputCP())
{
    ::SetConsoleOutputCP(CP_UTF8);
    for (FILE* stream : {stdout, stderr}) {
        ::_setmode(::_fileno(stream), _O_BINARY);
    }
    // It would be written byte by byte, and a console does not put the bytes of a letter together.
    std::setvbuf(stderr, nullptr, _IOFBF, BUFSIZ);
}

StandardStreams::~StandardStreams()
{
    std::fflush(nullptr);
    ::SetConsoleOutputCP(m_before);
}

#else

StandardStreams::StandardStreams() = default;

#endif
