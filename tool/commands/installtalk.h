#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class HallInstallation;
class Terminal;

/// Says how an installation goes: a bar for each hub to whoever watches, a line for each hub that
/// begins or ends to whoever reads it afterwards.
class InstallTalk : public QObject
{
    Q_OBJECT

public:
    /// `names` are what the hubs are called, by address. Neither pointer is owned.
    InstallTalk(const QHash<QString, QString>& names, const HallInstallation* installation,
                Terminal* terminal);

    void sayBegin();

    /// Leaves the bars as they are.
    void end();

public Q_SLOTS:
    void showProgress();
    void sayEnd(const QString& hub);
    void sayInterruption();

private:
    QString barOf(const QString& hub) const;
    QString wordsOf(const QString& hub) const;

    QHash<QString, QString> m_names;
    const HallInstallation* m_installation;
    Terminal* m_terminal;
    bool m_hasBars = false; ///< from the first transfer on
};
