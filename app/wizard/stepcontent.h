#pragma once

#include <QWidget>

class IDocAccessor;

/// What a step shows between the title and the buttons: it reads what earlier steps stored and
/// stores records of its own. When, its frame decides (StepPage).
class StepContent : public QWidget
{
    Q_OBJECT

public:
    /// Fills the widgets from the document. Called while the page is not visible yet: filling
    /// visible tables costs a layout per row.
    virtual void load() = 0;

    /// Replaces the step's records in the document by what is shown.
    virtual void store() = 0;

    /// Puts what is shown back to its start. The document keeps its records until store(), unless
    /// the step says otherwise.
    virtual void reset() = 0;

    /// What keeps the wizard from going on, one sentence for each thing that is still to be done;
    /// empty while it may go on. A step that may always be left has nothing to say.
    virtual QStringList missing() const { return {}; }

Q_SIGNALS:
    /// Whether the wizard may go on with what is shown now. A step that never emits it may always
    /// be left.
    void nextButtonEnabled(bool enable);

    /// missing() may have changed although it is not empty, before and after.
    void missingChanged();

    /// Something has happened that the keyboard's place does not tell: `words` are for screen
    /// readers, whole and with names.
    void announced(const QString& words);

protected:
    /// `doc` is not owned and outlives the content.
    StepContent(IDocAccessor* doc, QWidget* parent);

    IDocAccessor& doc() const;

private:
    IDocAccessor* m_doc;
};
