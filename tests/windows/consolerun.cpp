#include "consolerun.h"

#include <QTest>

#include <string>
#include <vector>

namespace {

constexpr int patience = 60000; // milliseconds

/// That programs may be handed.
HANDLE consoleFile(const wchar_t* name)
{
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return ::CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                         &inherited, OPEN_EXISTING, 0, nullptr);
}

INPUT_RECORD key(wchar_t letter, bool isDown)
{
    INPUT_RECORD record{};
    record.EventType = KEY_EVENT;
    record.Event.KeyEvent.bKeyDown = isDown ? TRUE : FALSE;
    record.Event.KeyEvent.wRepeatCount = 1;
    record.Event.KeyEvent.wVirtualKeyCode = letter == L'\r' ? VK_RETURN : 0;
    record.Event.KeyEvent.uChar.UnicodeChar = letter;
    return record;
}

} // namespace

ConsoleRun::ConsoleRun(const QString& program, const QStringList& arguments, Streams streams)
{
    ::FreeConsole();
    ::AllocConsole();
    m_screen = consoleFile(L"CONOUT$");
    m_keyboard = consoleFile(L"CONIN$");
    QString commandLine;
    for (const QString& part : QStringList(program) + arguments) {
        commandLine += u'"' + part + QStringLiteral("\" ");
    }
    // A program that inherits that Ctrl+C is to be ignored, ignores it.
    ::SetConsoleCtrlHandler(nullptr, FALSE);
    start(commandLine, streams);
}

ConsoleRun::~ConsoleRun()
{
    ::TerminateProcess(m_program.hProcess, 1);
    for (const HANDLE handle : {m_program.hThread, m_program.hProcess, m_screen, m_keyboard}) {
        ::CloseHandle(handle);
    }
    ::FreeConsole();
}

void ConsoleRun::start(const QString& commandLine, Streams streams)
{
    STARTUPINFOW setting{};
    setting.cb = sizeof(setting);
    if (streams == Streams::Given) {
        setting.dwFlags = STARTF_USESTDHANDLES;
        setting.hStdInput = m_keyboard;
        setting.hStdOutput = m_screen;
        setting.hStdError = m_screen;
    }
    std::wstring text = commandLine.toStdWString();
    const BOOL isStarted =
        ::CreateProcessW(nullptr, text.data(), nullptr, nullptr, streams == Streams::Given, 0,
                         nullptr, nullptr, &setting, &m_program);
    QVERIFY2(isStarted, qPrintable(commandLine));
}

bool ConsoleRun::hasShown(const QString& words)
{
    return QTest::qWaitFor([&] { return screen().contains(words); }, patience);
}

QString ConsoleRun::screen() const
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    ::GetConsoleScreenBufferInfo(m_screen, &info);
    QStringList lines;
    for (SHORT row = 0; row <= info.dwCursorPosition.Y; ++row) {
        std::vector<wchar_t> letters(size_t(info.dwSize.X));
        DWORD count = 0;
        ::ReadConsoleOutputCharacterW(m_screen, letters.data(), DWORD(letters.size()), {0, row},
                                      &count);
        QString line = QString::fromWCharArray(letters.data(), int(count));
        while (line.endsWith(u' ')) {
            line.chop(1);
        }
        lines.append(line);
    }
    return lines.join(u'\n');
}

void ConsoleRun::type(const QString& letters) const
{
    std::vector<INPUT_RECORD> records;
    for (const QChar letter : letters) {
        records.push_back(key(wchar_t(letter.unicode()), true));
        records.push_back(key(wchar_t(letter.unicode()), false));
    }
    DWORD count = 0;
    ::WriteConsoleInputW(m_keyboard, records.data(), DWORD(records.size()), &count);
    QCOMPARE(size_t(count), records.size());
}

void ConsoleRun::pressCtrlC()
{
    // The test is in this console, too.
    ::SetConsoleCtrlHandler(nullptr, TRUE);
    QVERIFY(::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0));
}

bool ConsoleRun::isEchoing() const
{
    DWORD mode = 0;
    ::GetConsoleMode(m_keyboard, &mode);
    return (mode & ENABLE_ECHO_INPUT) != 0;
}

bool ConsoleRun::isOver() const
{
    return ::WaitForSingleObject(m_program.hProcess, 0) == WAIT_OBJECT_0;
}

int ConsoleRun::ended()
{
    DWORD code = 0;
    if (!QTest::qWaitFor([this] { return isOver(); }, patience) ||
        ::GetExitCodeProcess(m_program.hProcess, &code) == 0) {
        return -1;
    }
    return int(code);
}
