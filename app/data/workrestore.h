#pragma once

#include "savedwork.h"

struct DocumentData;

/// How restoring ended.
struct RestoreOutcome
{
    bool isComplete = false;
    QList<SavedDevice> missing; ///< placed devices that are not there now
};

/// What of the document goes into the resume file; the layouts' pictures travel beside it.
SavedWork gatherWork(const DocumentData& doc);

/// Takes the saved work into the document, section by section: rooms, layouts, device sets and
/// presets replace what is there; devices are those found at this start and only get their room
/// and label back, from the first record that has one where a device was saved twice. Stops at
/// missing devices and at a foreign element; what was taken until then stays. Records that repeat
/// an earlier one are dropped, as the document refuses them elsewhere.
///
/// `pictures` are matched to the layouts by number and room group text.
RestoreOutcome restoreWork(DocumentData& doc, const SavedWork& work,
                           const QList<SceneInfo>& pictures);
