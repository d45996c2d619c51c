#include "stepcontent.h"

StepContent::StepContent(IDocAccessor* doc, QWidget* parent)
    : QWidget(parent)
    , m_doc(doc)
{
}

IDocAccessor& StepContent::doc() const
{
    return *m_doc;
}
