#pragma once

#include <QString>
#include <QStringList>

#include <windows.h>

/// A console of the test's own, empty, in which one program is started. Its screen and its keys are
/// the test's.
class ConsoleRun
{
public:
    /// Whether the program is handed the console, as a console's own programs are, or finds it by
    /// itself, as programs with windows do.
    enum class Streams
    {
        Given,
        NotGiven
    };

    ConsoleRun(const QString& program, const QStringList& arguments,
               Streams streams = Streams::Given);
    ~ConsoleRun();
    Q_DISABLE_COPY_MOVE(ConsoleRun)

    /// Waits until this is on the screen; false when it never is.
    bool hasShown(const QString& words);

    /// What is on the screen, line by line without what is blank at their ends.
    QString screen() const;

    /// Types on the keyboard; "\r" is the Return key.
    void type(const QString& letters) const;

    /// Presses Ctrl+C.
    static void pressCtrlC();

    /// Whether what is typed is shown.
    bool isEchoing() const;

    /// Waits for the program's end; returns its exit code, or -1 when it does not end.
    int ended();

private:
    void start(const QString& commandLine, Streams streams);
    bool isOver() const;

    HANDLE m_screen = nullptr;
    HANDLE m_keyboard = nullptr;
    PROCESS_INFORMATION m_program{};
};
