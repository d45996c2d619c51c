#pragma once

class BasePage;
class IDocAccessor;
class IPageController;
class QWidget;

/// The number of pages.
inline constexpr int pageTotal = 9;

/// Makes the page at `index` (0 to 8, in step order) as a child of `parent`; null for any other
/// index.
BasePage* makePage(int index, IPageController* controller, IDocAccessor* doc, QWidget* parent);
