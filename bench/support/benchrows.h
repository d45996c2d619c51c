#pragma once

/// Each registers the comparisons of one subject; the source of the same subject says what is
/// compared with what.
void registerDatagrams();
void registerPresetFiles();
void registerPages();
void registerRoomCombos();
void registerStroke();
void registerResumeFile();
void registerShow();
