#include "hallondisk.h"

#include "documentfixtures.h"
#include "hallfile.h"

HallOnDisk::HallOnDisk(const QString& stage, const QString& gallery)
{
    HallDocument hall;
    enterHall(hall, {3,
                     {{QStringLiteral("Stage"), QStringLiteral("PX-HB"), stage, 1},
                      {QStringLiteral("Gallery"), QStringLiteral("PX-HB"), gallery, 2},
                      {QStringLiteral("Ceiling"), QStringLiteral("PX-DL8"),
                       QStringLiteral("127.32.9.9"), 2}},
                     {QStringLiteral("1/2/3"), QStringLiteral("1+2/3"), QStringLiteral("1+2+3")}});
    const QString path = m_folder.filePath(QStringLiteral("hall.tessel"));
    if (writeHallFile(path, hall.data()).isEmpty()) {
        m_path = path;
    }
}
