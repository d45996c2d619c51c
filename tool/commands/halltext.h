#pragma once

#include <QString>

class HallDocument;

/// A hall as text for people, in 80 columns: the drawn rooms, what stands in each, the layouts, and
/// what each combined room has. Broken limits are marked.
QString hallText(HallDocument& hall);
