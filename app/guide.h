#pragma once

#include <QCoreApplication>
#include <QString>

/// The guide for whoever stands in the hall: pages that the system's browser shows, one for each
/// step. They lie beside the program, or where an installation puts them; the program knows their
/// place by its own alone.
class Guide
{
    Q_DECLARE_TR_FUNCTIONS(Guide)

public:
    /// The guide of the program that lies in `programFolder`.
    explicit Guide(const QString& programFolder);

    /// The folder of the pages; empty where there are none.
    const QString& folder() const { return m_folder; }

    /// Opens the page of a step, from 1. Returns one sentence that tells where the guide is, for
    /// the case that it is not there or nothing opens it; nothing when it was opened.
    QString open(int step) const;

private:
    QString m_programFolder;
    QString m_folder;
};
