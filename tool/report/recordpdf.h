#pragma once

#include <QByteArray>
#include <QDate>
#include <QPageSize>
#include <QString>

/// What a PDF has besides its text.
struct PdfFrame
{
    QString title; ///< in the file's properties
    QString name;  ///< at the foot of every page, beside its number
    QDate date;    ///< the day that it says it was made
    QPageSize::PageSizeId paper = QPageSize::A4;
};

/// The same page of HTML as a PDF. Headings stay with their text, rows of tables are not cut,
/// titles of columns are repeated on each page. The same text and frame give the same bytes.
QByteArray recordPdf(const QString& html, const PdfFrame& frame);

/// The same HTML with MAC addresses that stay in one line: a text document would part them behind a
/// colon. What holds them together is neither seen nor written into the PDF.
QString withWholeMacAddresses(QString html);
