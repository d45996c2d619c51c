#pragma once

#include <QSize>
#include <QString>

class IDocAccessor;

/// Keeps a hall whose hubs are all done as a file of its own among the user's documents, named
/// after the present time, as if it had been saved on the installation step. Files that are there
/// stay as they are. Returns the file's path; empty when it could not be written, which only the
/// debug output tells: the hubs have what they need.
QString keepHall(IDocAccessor& doc, QSize windowSize);
