#pragma once

#include <QList>

#include <optional>

/// A piece of a long text from top to bottom.
struct Span
{
    qreal top = 0;
    qreal bottom = 0;

    qreal height() const { return bottom - top; }
};

/// A piece that is not to be cut by the end of a page, such as a row of a table.
struct Strip
{
    Span span;
    bool isKeptWithNext = false; ///< such as a heading, which is nothing by itself
    std::optional<Span> head;    ///< repeated above it where it begins a page: titles of columns
};

/// What of the long text stands on one page.
struct PageSlice
{
    std::optional<Span> head; ///< above the body
    Span body;
};

/// Parts strips, which follow each other from top to bottom, into pages of a height. Only a strip
/// that is higher than a page is cut. No page is empty; there is none without strips.
QList<PageSlice> slicedIntoPages(const QList<Strip>& strips, qreal height);
