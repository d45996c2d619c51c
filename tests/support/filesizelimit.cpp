#include "filesizelimit.h"

#ifdef Q_OS_LINUX
#include <csignal>

bool FileSizeLimit::isPossible()
{
    return true;
}

FileSizeLimit::FileSizeLimit(qint64 bytes)
{
    m_handler = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_before);
    rlimit limit = m_before;
    limit.rlim_cur = rlim_t(bytes);
    setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
}
#else
bool FileSizeLimit::isPossible()
{
    return false;
}

FileSizeLimit::FileSizeLimit(qint64 /*bytes*/) {}

FileSizeLimit::~FileSizeLimit() = default;
#endif
