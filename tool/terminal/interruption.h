#pragma once

#include <QObject>

/// Turns the first Ctrl+C or Ctrl+\, the first polite kill or the loss of the terminal into a
/// signal of the event loop, so that a command can put right what it has begun. The second one ends
/// the program at once, but for the loss of the terminal.
class Interruption : public QObject
{
    Q_OBJECT

public:
    /// There can be one at a time.
    explicit Interruption(QObject* parent = nullptr);
    /// From then on the first one ends the program at once.
    ~Interruption() override;

    /// Whether it has come.
    bool hasCome() const { return m_hasCome; }

Q_SIGNALS:
    void interrupted();

private Q_SLOTS:
    void note();

private:
    bool m_hasCome = false;
};
