#include "privatemounts.h"

#include <QFile>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>
#endif

namespace {

QString& refusal()
{
    static QString reason = QStringLiteral("This system has no mounts that only one program sees.");
    return reason;
}

#ifdef Q_OS_LINUX
bool writeText(const char* path, const QByteArray& text)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// As root; else as root of a user namespace, in which nobody but this user is known.
bool separateMounts()
{
    const QByteArray user = QByteArray::number(getuid());
    const QByteArray group = QByteArray::number(getgid());
    if (unshare(CLONE_NEWNS) == 0) {
        return true;
    }
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && writeText("/proc/self/setgroups", "deny") &&
           writeText("/proc/self/uid_map", "0 " + user + " 1") &&
           writeText("/proc/self/gid_map", "0 " + group + " 1");
}
#endif

} // namespace

#ifdef Q_OS_LINUX
void makePrivateMounts()
{
    // Private, so that no mount made here reaches the rest of the system.
    if (separateMounts() && mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0) {
        refusal().clear();
    } else {
        refusal() = QStringLiteral("This system refuses mounts that only this program sees: %1")
                        .arg(qt_error_string(errno));
    }
}

bool mountDisk(const QString& folder, qint64 bytes, int files)
{
    const QByteArray options =
        "size=" + QByteArray::number(bytes) + ",nr_inodes=" + QByteArray::number(files);
    return mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, options.constData()) ==
           0;
}

bool forbidWriting(const QString& folder)
{
    return mount("none", QFile::encodeName(folder).constData(), "none", MS_REMOUNT | MS_RDONLY,
                 nullptr) == 0;
}

bool unmount(const QString& folder)
{
    return umount(QFile::encodeName(folder).constData()) == 0;
}
#else
void makePrivateMounts() {}

bool mountDisk(const QString& /*folder*/, qint64 /*bytes*/, int /*files*/)
{
    return false;
}

bool forbidWriting(const QString& /*folder*/)
{
    return false;
}

bool unmount(const QString& /*folder*/)
{
    return false;
}
#endif

QString privateMountsRefusal()
{
    return refusal();
}
