#pragma once

#include "documentfixtures.h"
#include "finding.h"

#include <QColor>

/// How the tests of the pages that list combined rooms use what these show.

/// Clicks a row of the page's list of combined rooms.
void selectGroup(const QWidget& page, int row);

/// The colour of the picture that the page shows, invalid when it shows none.
QColor shownPicture(const QWidget& parent);
