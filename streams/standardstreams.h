#pragma once

#include <QtGlobal>

/// While it lives, a console shows what the program writes in the letters that are meant, and files
/// and other programs get the same bytes as on other systems. Made once, at the beginning of a
/// program without windows; where a console takes bytes as they are, it changes nothing.
class StandardStreams
{
public:
    StandardStreams();
#ifdef Q_OS_WIN
    ~StandardStreams();
#endif
    Q_DISABLE_COPY_MOVE(StandardStreams)

private:
    /// The character set that the console had, which outlives the program.
    [[maybe_unused]] unsigned m_before = 0;
};
