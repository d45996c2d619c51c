#pragma once

#include <QString>

class QLabel;
class QWidget;

/// A label for the explanations above a page's content: plain text that wraps at words.
QLabel* textLabel(const QString& text, QWidget* parent);

/// A title to stand above `list`, a child of the same parent.
QLabel* titleLabel(const QString& text, QWidget* list);
