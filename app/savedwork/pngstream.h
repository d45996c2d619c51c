#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>

/// What the outside of a PNG picture tells.
struct PngExtent
{
    qsizetype length = 0; ///< bytes from its first to its last
    QSize size;           ///< pixels
};

/// Measures the PNG picture at the beginning of `bytes` without decoding it: nothing when it is
/// cut, damaged, or holds compressed texts, which could be small here and fill the memory when
/// read.
///
/// A stream of pictures does not say how long each one is, and a picture that is damaged should be
/// found out before the decoder meets it.
std::optional<PngExtent> measurePng(QByteArrayView bytes);
