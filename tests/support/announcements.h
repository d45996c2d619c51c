#pragma once

#include <QAccessible>
#include <QList>
#include <QStringList>

#include <utility>

/// Listens to what screen readers are told, for as long as it lives. One at a time.
class Announcements
{
public:
    Announcements();
    ~Announcements();
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    /// Whether anything can be heard here. Qt tells nothing unless its platform says that a screen
    /// reader listens; the one without a display never does, and is made to where that is possible.
    bool canHear() const { return QAccessible::isActive(); }

    /// How often this was said of `object` since it was last asked for.
    static qsizetype count(const QObject* object, QAccessible::Event type);

    /// What was read out since it was last asked for: the names that status bars took on.
    static QStringList takeSaid();

private:
    static QList<std::pair<const QObject*, QAccessible::Event>>& told();
    static QStringList& said();
    static void hear(QAccessibleEvent* event);
};
