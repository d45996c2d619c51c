#pragma once

#include <QString>

class IDocAccessor;

/// Saves the work that a document holds under a name that no file has: `path` or, where that is
/// taken, the first free one of "name (2).ending", "name (3).ending", ... No file is ever replaced,
/// whoever else looks for a name at the same time. Returns the file's path; empty when it could not
/// be written.
QString saveAsNewFile(IDocAccessor& doc, const QString& path);
