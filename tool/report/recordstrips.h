#pragma once

#include "pageslices.h"

class QTextDocument;

/// The pieces of a document that has been laid out without pages: paragraphs, and rows of tables.
/// Headings and pictures stay with what follows, and so do all paragraphs between a heading, or the
/// former table, and a table or a list. `scale` is how many units of the paper make a pixel of a
/// screen.
QList<Strip> stripsOf(const QTextDocument& document, qreal scale);
