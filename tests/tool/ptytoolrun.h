#pragma once

#include "toolrun.h"

#include <QProcess>

/// The built tool on a terminal of its own, whose keyboard and screen are the test's. Standard
/// output goes elsewhere.
class PtyToolRun
{
public:
    /// How it is started.
    struct Setting
    {
        bool hearsHangUp = true;    ///< as without nohup
        bool errorsOnScreen = true; ///< otherwise they go elsewhere
        int columns = 0;            ///< of the screen; 0 when the terminal does not tell
    };

    /// False where the system has no such terminals; then nothing is started.
    static bool isPossible();

    explicit PtyToolRun(const QStringList& arguments, const Setting& setting);
    explicit PtyToolRun(const QStringList& arguments);
    ~PtyToolRun();
    Q_DISABLE_COPY_MOVE(PtyToolRun)

    /// Waits until this has been shown since it was waited for last; false when it never is.
    bool hasShown(const QString& words);

    /// Types; a line needs its line feed.
    void type(const QByteArray& keys) const;

    /// Whether the terminal shows what is typed.
    bool isEchoing() const;

    /// Sends it a signal.
    void signal(int number) const;

    /// Takes the terminal away.
    void closeTerminal();

    /// Waits for its end; its errors are all that was on the screen, or went elsewhere.
    ToolRun ended();

    /// Everything that was shown up to now.
    QString screen() const { return m_shown; }

private:
    void look();

    int m_keyboard = -1; ///< the test's end of the terminal
    int m_terminal = -1; ///< the tool's end, held open so that its mode can be asked for
    QProcess m_program;
    QString m_shown;
    qsizetype m_seen = 0; ///< how much of it was waited for
};
