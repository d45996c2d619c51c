#pragma once

#include "savedwork.h"

struct DocumentData;

/// How restoring ended.
struct RestoreOutcome
{
    bool isComplete = false;    ///< all but what was left out on demand
    QList<SavedDevice> missing; ///< placed devices that are not there now
};

/// What becomes of saved work when devices that stand in its rooms are not there now.
enum class IfMissing
{
    Stop,    ///< nothing behind the devices is taken
    LeaveOut ///< all is taken but they, and their places in the device sets
};

/// What of the document goes into the resume file; the layouts' pictures travel beside it.
SavedWork gatherWork(const DocumentData& doc);

/// Takes the saved work into the document, section by section: rooms, layouts, device sets and
/// presets replace what is there; devices are those found at this start and only get their room
/// and label back, from the first record that has one where a device was saved twice. Stops at
/// missing devices, unless they are left out, and at a foreign element; what was taken until then
/// stays. Records that repeat an earlier one are dropped, as the document refuses them elsewhere.
///
/// A device set names devices by address: a device that now answers at the address of a missing
/// one takes its places in the sets, but not its room.
///
/// `pictures` are matched to the layouts by number and room group text.
RestoreOutcome restoreWork(DocumentData& doc, const SavedWork& work,
                           const QList<SceneInfo>& pictures, IfMissing ifMissing = IfMissing::Stop);
