#pragma once

#include "documentfixtures.h"
#include "finding.h"

#include <QStringList>

#include <initializer_list>

/// What the tests of the pages share beside their documents: how they press and compare things.

/// A list of texts for comparisons.
QStringList strings(std::initializer_list<const char*> texts);

/// The texts of the labels below `page`, but for the line that says what is missing.
QStringList labelTexts(const QWidget& page);

/// Presses and releases the left button of the mouse on it.
void press(QWidget* widget);

/// The object names of the widgets that Tab walks through below `root`, from the first on.
QStringList tabOrder(const QWidget& root);
