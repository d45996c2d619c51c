#pragma once

#include <QString>

struct SavedWork;

/// The XML text inside a resume file: the work's sections in their order. The same work gives the
/// same text.
QString writeResumeXml(const SavedWork& work);
