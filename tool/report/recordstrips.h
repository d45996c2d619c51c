#pragma once

#include "pageslices.h"

class QTextDocument;

/// The pieces of a document that has been laid out without pages: paragraphs, and rows of tables.
/// Headings and pictures stay with what follows, and so does a paragraph right above a table.
/// `scale` is how many units of the paper make a pixel of a screen.
QList<Strip> stripsOf(const QTextDocument& document, qreal scale);
