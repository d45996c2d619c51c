#include "ctrlc.h"

#include <QProcess>

#ifdef Q_OS_WIN

#include <windows.h>

void pressCtrlC(const QProcess& program)
{
    // Only who is in a console can press its keys; this program must not take them as meant for it.
    ::FreeConsole();
    if (::AttachConsole(DWORD(program.processId())) != 0) {
        ::SetConsoleCtrlHandler(nullptr, TRUE);
        ::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
        ::FreeConsole();
    }
}

void startWithConsole(QProcess& program)
{
    program.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->flags |= CREATE_NEW_CONSOLE;
        arguments->flags &= ~ulong(CREATE_NO_WINDOW);
        arguments->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
        arguments->startupInfo->wShowWindow = SW_HIDE;
    });
    // A child that inherits that Ctrl+C is to be ignored, ignores it.
    ::SetConsoleCtrlHandler(nullptr, FALSE);
    program.start();
}

#else

#include <csignal>

void pressCtrlC(const QProcess& program)
{
    ::kill(static_cast<pid_t>(program.processId()), SIGINT);
}

void startWithConsole(QProcess& program)
{
    program.start();
}

#endif
