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
}

StandardStreams::~StandardStreams()
{
    ::SetConsoleOutputCP(m_before);
}

#else

StandardStreams::StandardStreams() = default;

StandardStreams::~StandardStreams() = default;

#endif
