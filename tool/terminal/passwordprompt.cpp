#include "passwordprompt.h"

#include <array>
#include <optional>

namespace {

QString withoutEnd(QString line)
{
    while (line.endsWith(u'\n') || line.endsWith(u'\r')) {
        line.chop(1);
    }
    return line;
}

} // namespace

#ifdef Q_OS_WIN

#include <io.h>
#include <windows.h>

/// A console that does not show what is typed.
class PasswordPrompt::Silence
{
public:
    Silence(int descriptor, PasswordPrompt* prompt)
        : m_console(reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor)))
    {
        ::GetConsoleMode(m_console, &m_before);
        ::SetConsoleMode(m_console, (m_before | ENABLE_LINE_INPUT) & ~DWORD(ENABLE_ECHO_INPUT));
        // A console tells no event loop that a line is there, so the loop stands still until then.
        QMetaObject::invokeMethod(prompt, "takeLine", Qt::QueuedConnection);
    }
    ~Silence() { ::SetConsoleMode(m_console, m_before); }
    Q_DISABLE_COPY_MOVE(Silence)

    /// The next line with its end, empty for the end of input; none when reading failed, also by
    /// Ctrl+C.
    std::optional<QString> line() const
    {
        std::array<wchar_t, 1024> letters{};
        DWORD count = 0;
        const BOOL isRead =
            ::ReadConsoleW(m_console, letters.data(), DWORD(letters.size()), &count, nullptr);
        if (!isRead || count == 0) {
            return std::nullopt;
        }
        // A console hands on the keys that end an input as letters.
        const QString text = QString::fromWCharArray(letters.data(), int(count));
        return text.startsWith(QChar(0x04)) || text.startsWith(QChar(0x1a)) ? QString() : text;
    }

private:
    HANDLE m_console;
    DWORD m_before = 0;
};

bool PasswordPrompt::isPossible() const
{
    return ::_isatty(m_descriptor) != 0;
}

QString PasswordPrompt::closingKeys()
{
    return QStringLiteral("Ctrl+D followed by Return");
}

#else

#include <QSocketNotifier>

#include <termios.h>
#include <unistd.h>

/// A terminal that does not show what is typed.
class PasswordPrompt::Silence
{
public:
    Silence(int descriptor, PasswordPrompt* prompt)
        : m_descriptor(descriptor)
        , m_notifier(new QSocketNotifier(descriptor, QSocketNotifier::Read, prompt))
    {
        ::tcgetattr(m_descriptor, &m_before);
        termios silent = m_before;
        silent.c_lflag |= tcflag_t(ICANON);
        silent.c_lflag &= ~tcflag_t(ECHO | ECHONL);
        // While a program is stopped, the shell makes the terminal show again what is typed; one
        // that quits leaves it silent.
        silent.c_cc[VSUSP] = _POSIX_VDISABLE;
        silent.c_cc[VQUIT] = _POSIX_VDISABLE;
#ifdef VDSUSP
        silent.c_cc[VDSUSP] = _POSIX_VDISABLE;
#endif
        // What was typed ahead stays: it may be a pasted password and its repetition.
        ::tcsetattr(m_descriptor, TCSADRAIN, &silent);
        connect(m_notifier, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), prompt,
                SLOT(takeLine()));
    }
    ~Silence()
    {
        // It may be the one that told of the line.
        m_notifier->setEnabled(false);
        m_notifier->deleteLater();
        ::tcsetattr(m_descriptor, TCSADRAIN, &m_before);
    }
    Q_DISABLE_COPY_MOVE(Silence)

    /// The next line with its end, empty for the end of input; none when reading failed.
    std::optional<QString> line() const
    {
        std::array<char, 4096> letters{};
        const ssize_t count = ::read(m_descriptor, letters.data(), letters.size());
        return count >= 0 ? std::optional(QString::fromLocal8Bit(letters.data(), count))
                          : std::nullopt;
    }

private:
    int m_descriptor;
    QSocketNotifier* m_notifier; ///< child of the prompt
    termios m_before{};
};

bool PasswordPrompt::isPossible() const
{
    return ::isatty(m_descriptor) != 0;
}

QString PasswordPrompt::closingKeys()
{
    return QStringLiteral("Ctrl+D");
}

#endif

PasswordPrompt::PasswordPrompt(int descriptor, QObject* parent)
    : QObject(parent)
    , m_descriptor(descriptor)
{
}

PasswordPrompt::~PasswordPrompt() = default;

void PasswordPrompt::read()
{
    m_silence = std::make_unique<Silence>(m_descriptor, this);
}

void PasswordPrompt::stop()
{
    m_silence.reset();
}

void PasswordPrompt::takeLine()
{
    if (m_silence == nullptr) {
        return;
    }
    const std::optional<QString> line = m_silence->line();
    stop();
    // A terminal that is gone has an end of input too, which nobody typed.
    if (!line || (line->isEmpty() && !isPossible())) {
        // An interruption that ended the reading is told first.
        QMetaObject::invokeMethod(this, "lost", Qt::QueuedConnection);
    } else if (line->isEmpty()) {
        Q_EMIT closed();
    } else {
        Q_EMIT typed(withoutEnd(*line));
    }
}
