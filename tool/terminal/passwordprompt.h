#pragma once

#include <QObject>

#include <memory>

/// Reads lines from a terminal without showing what is typed, and without the keys that stop or
/// quit a program. Once this is destroyed, also in the middle of a line, the terminal is as before;
/// a program that is killed at once or crashes leaves it as it is.
class PasswordPrompt : public QObject
{
    Q_OBJECT

public:
    static constexpr int standardInput = 0;

    /// `descriptor` is open for reading as long as this lives.
    explicit PasswordPrompt(int descriptor = standardInput, QObject* parent = nullptr);
    ~PasswordPrompt() override;

    /// Whether it is a terminal; without one nothing can be read.
    bool isPossible() const;

    /// The keys that end the input, as a sentence names them.
    static QString closingKeys();

    /// From now on nothing is shown. One line is read, and after it what is typed is shown again;
    /// typed(), closed() or lost() follows.
    void read();

    /// Shows again what is typed. Nothing follows.
    void stop();

Q_SIGNALS:
    void typed(const QString& line);
    /// No line came: the user typed the end of input.
    void closed();
    /// No line came and none ever will: the terminal is gone, or its reader was interrupted.
    void lost();

private Q_SLOTS:
    void takeLine();

private:
    class Silence;

    int m_descriptor;
    std::unique_ptr<Silence> m_silence; ///< while a line is awaited
};
