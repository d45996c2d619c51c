#pragma once

#include <QLabel>

/// A label that screen readers read out when it has something new to say, wherever the focus is.
///
/// To them it is a status bar, and what it said last is its name: readers wait for such a name to
/// change. Alerts are meant for this too, but Qt does not hand them on everywhere. While it is
/// hidden it is silent; what it shows by then is read out each time it comes to sight.
class SpokenLabel : public QLabel
{
    Q_OBJECT

public:
    explicit SpokenLabel(QWidget* parent);

    /// Shows `text` and has it read out, unless it is shown already or was part of what was
    /// announced last. An empty one takes back what was said.
    void say(const QString& text);

public Q_SLOTS:
    /// Has `words` read out, which are shown nowhere; the same ones as often as they are announced.
    void announce(const QString& words);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void forget();
    void tell(const QString& words);

    QString m_announced; ///< last
};
