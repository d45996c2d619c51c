#pragma once

#include <QAccessibleWidget>

class PressButton;

/// What assistive technology sees of a PressButton: a button that can be pressed, and that is
/// checked or not where its face can be.
class PressButtonAccessible : public QAccessibleWidget
{
public:
    explicit PressButtonAccessible(PressButton* button);

    /// Makes every PressButton be seen through this class. Needed once; more calls do nothing.
    static void install();

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    PressButton* button() const;
};
