#pragma once

#include "basepage.h"

class QHBoxLayout;
class QPushButton;
class QuietLine;
class StepContent;

/// The frame that the working steps share: the content of the step above a row of buttons.
///
/// The frame decides when the content is loaded (arriving forward from an earlier step, or after
/// saved work was loaded), when it is stored (Next, or before saving) and when it is reset; coming
/// back from a later step keeps the widgets as they are. Next follows the content's
/// nextButtonEnabled(bool) and is enabled until then; while it is disabled, a quiet line beside it
/// and the button itself say what is missing.
class StepPage : public BasePage
{
    Q_OBJECT

public:
    void enterFrom(int previousPageNumber) override;
    void restoreFromDocument() override;
    void storeToDocument() override;

public Q_SLOTS:
    void setNextButtonEnabled(bool enable);
    void showMissing();

protected Q_SLOTS:
    virtual void backButtonClicked(); ///< goes back; nothing is stored
    void resetButtonClicked();        ///< resets the content
    void nextButtonClicked();         ///< stores, then goes on
    void closeButtonClicked();        ///< leaves the wizard as closing the window does

protected:
    /// Which button stands on the left: the first working step closes, the others go back.
    enum class LeftButton
    {
        Close,
        Back
    };

    /// Takes `content` over. Neither `controller` nor `doc` is owned; both outlive the page.
    StepPage(const QString& title, int pageNumber, StepContent* content, LeftButton left,
             IPageController* controller, IDocAccessor* doc, QWidget* parent);

private:
    void buildLayout(LeftButton left);
    QPushButton* addButton(QHBoxLayout* row, const QString& text, const QString& name,
                           const char* slot);

    StepContent* m_content;
    QuietLine* m_quietLine;
    QPushButton* m_nextButton = nullptr;
};
