#include "announcements.h"

#ifdef Q_OS_LINUX
#include <dlfcn.h>
#endif

namespace {

/// Qt has no public way to do what a screen reader does when it starts.
void setListening(bool listening)
{
#ifdef Q_OS_LINUX
    using Find = void* (*)(const void* platform);
    using Set = void (*)(void* accessibility, bool active);
    auto* const* platform = static_cast<void**>(
        dlsym(RTLD_DEFAULT, "_ZN22QGuiApplicationPrivate20platform_integrationE"));
    const auto find =
        reinterpret_cast<Find>(dlsym(RTLD_DEFAULT, "_ZNK20QPlatformIntegration13accessibilityEv"));
    const auto set =
        reinterpret_cast<Set>(dlsym(RTLD_DEFAULT, "_ZN22QPlatformAccessibility9setActiveEb"));
    if (platform && find && set) {
        set(find(*platform), listening);
    }
#else
    Q_UNUSED(listening);
#endif
}

} // namespace

Announcements::Announcements()
{
    told().clear();
    said().clear();
    setListening(true);
    QAccessible::installUpdateHandler(hear);
}

Announcements::~Announcements()
{
    QAccessible::installUpdateHandler(nullptr);
    setListening(false);
}

qsizetype Announcements::count(const QObject* object, QAccessible::Event type)
{
    return told().removeAll(std::pair(object, type));
}

QList<std::pair<const QObject*, QAccessible::Event>>& Announcements::told()
{
    static QList<std::pair<const QObject*, QAccessible::Event>> all;
    return all;
}

QStringList Announcements::takeSaid()
{
    return std::exchange(said(), {});
}

QStringList& Announcements::said()
{
    static QStringList all;
    return all;
}

void Announcements::hear(QAccessibleEvent* event)
{
    told().append({event->object(), event->type()});
    if (event->type() != QAccessible::NameChanged) {
        return;
    }
    const QAccessibleInterface* teller = event->accessibleInterface();
    if (teller && teller->role() == QAccessible::StatusBar &&
        !teller->text(QAccessible::Name).isEmpty()) {
        said().append(teller->text(QAccessible::Name));
    }
}
