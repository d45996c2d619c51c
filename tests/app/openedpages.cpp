#include "openedpages.h"

#include <QDesktopServices>

OpenedPages::OpenedPages()
{
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
}

OpenedPages::~OpenedPages()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

QStringList OpenedPages::paths() const
{
    QStringList paths;
    for (const QUrl& url : m_urls) {
        paths.append(url.toLocalFile());
    }
    return paths;
}

void OpenedPages::open(const QUrl& url)
{
    m_urls.append(url);
}
