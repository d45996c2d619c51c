#pragma once

class BasePage;
class IDocAccessor;
class IPageController;
class QWidget;

/// Makes the page at `index` (of WizardPage) as a child of `parent`; null for any other index.
BasePage* makePage(int index, IPageController* controller, IDocAccessor* doc, QWidget* parent);
