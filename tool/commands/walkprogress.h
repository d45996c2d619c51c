#pragma once

#include "terminal.h"
#include "walkreport.h"

#include <QObject>

/// Says of each layout what came of it as soon as that is known, and that a walk is interrupted
/// which has something to restore.
class WalkProgress : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned.
    WalkProgress(const WalkResult* result, Terminal* terminal);

public Q_SLOTS:
    void sayLayout(int number);
    void sayInterruption();

private:
    const WalkResult* m_result;
    Terminal* m_terminal;
};
