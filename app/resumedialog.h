#pragma once

#include <QDialog>

/// Asks for patience while the devices of a saved configuration are looked for. It has no buttons
/// and the user cannot dismiss it: the main window shows and hides it.
class ResumeDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ResumeDialog(QWidget* parent);

public Q_SLOTS:
    /// Does nothing: Escape must not uncover a window that is still disabled.
    void reject() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void setMargins();
};
