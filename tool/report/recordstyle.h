#pragma once

#include <QPageSize>
#include <QString>

/// The style sheet of a record, for screens, for print, and for the PDF, which understands the
/// simpler half of it.
QString recordStyle(QPageSize::PageSizeId paper);
