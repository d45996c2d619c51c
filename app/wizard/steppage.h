#pragma once

#include "basepage.h"

class QHBoxLayout;
class QPushButton;

/// The frame that the working steps share: a content widget above a row of buttons.
///
/// The frame decides when the content is loaded (arriving forward from an earlier step, or after
/// saved work was loaded) and when it is stored (Next, or before saving); coming back from a later
/// step keeps the widgets as they are. A step says what loading, storing and resetting mean.
class StepPage : public BasePage
{
    Q_OBJECT

public:
    void enterFrom(int previousPageNumber) override;
    void restoreFromDocument() override;
    void storeToDocument() override;

public Q_SLOTS:
    /// Connected to the content's nextButtonEnabled(bool).
    void setNextButtonEnabled(bool enable);

protected Q_SLOTS:
    virtual void backButtonClicked();  ///< goes back; nothing is stored
    virtual void resetButtonClicked(); ///< resets the content
    virtual void nextButtonClicked();  ///< stores, then goes on
    virtual void closeButtonClicked(); ///< leaves the wizard as closing the window does

protected:
    using BasePage::BasePage;

    /// Which button stands on the left: the first working step closes, the others go back.
    enum class LeftButton
    {
        Close,
        Back
    };

    /// Lays out `content` above the row left button, Reset, space, Next, and connects the
    /// buttons. Called once, by the constructor of the step; the frame takes `content` over.
    void buildFrame(QWidget* content, LeftButton left);

    /// Fills the content from the document. Called while the page is not visible yet.
    virtual void load() = 0;
    /// Writes the content to the document.
    virtual void store() = 0;
    /// Puts the content back to its start.
    virtual void reset() = 0;

private:
    QPushButton* addButton(QHBoxLayout* row, const QString& text, const QString& name,
                           const char* slot);

    QPushButton* m_nextButton = nullptr;
};
