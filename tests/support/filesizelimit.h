#pragma once

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

/// While it lives no file of this program, or of one that it starts meanwhile, grows beyond a size:
/// writing fails as on a full disk. To be judged once it is gone: it holds for the test's own log
/// as well.
class FileSizeLimit
{
public:
    /// False where the system has no such limit; then it does nothing.
    static bool isPossible();

    explicit FileSizeLimit(qint64 bytes);
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    FileSizeLimit(FileSizeLimit&&) = delete;
    FileSizeLimit& operator=(FileSizeLimit&&) = delete;
    ~FileSizeLimit();

#ifdef Q_OS_LINUX
private:
    rlimit m_before = {};
    void (*m_handler)(int) = nullptr;
#endif
};
