#pragma once

#include <QStringList>

#include <memory>

class QDialog;
class QWidget;

/// Names of all dialogs of the wizard, some of them in several states.
QStringList dialogNames();

/// The dialog of this name, not shown yet; it belongs to `parent`.
QDialog* makeDialog(const QString& name, QWidget* parent);

/// A window for dialogs to open over, no larger than a small screen, shown.
std::unique_ptr<QWidget> makeWindow();
