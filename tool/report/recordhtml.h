#pragma once

#include <QString>

struct HallRecord;

/// The record of a hall as one page of HTML that refers to nothing outside: rooms and their
/// devices, layouts with what each combined room has, and what a search and a walk have told.
QString recordHtml(const HallRecord& record);
