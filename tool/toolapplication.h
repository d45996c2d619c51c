#pragma once

#include <QCoreApplication>

#include <memory>

/// The application object that a command runs in. It needs no display, and takes none of the
/// user's arguments for its own.
///
/// Pictures need one that knows graphics and fonts, which takes longer to start; `needsPictures`
/// asks for it.
std::unique_ptr<QCoreApplication> makeToolApplication(bool needsPictures);
