#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

/// Stands where the system's browser is, and takes down which files it is to show.
class OpenedPages : public QObject
{
    Q_OBJECT

public:
    OpenedPages();
    ~OpenedPages() override;

    /// The paths of the files, in the order in which they were to be opened.
    QStringList paths() const;

public Q_SLOTS:
    void open(const QUrl& url);

private:
    QList<QUrl> m_urls;
};
