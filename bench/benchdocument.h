#pragma once

#include <QString>

class IDocAccessor;

/// How large the hall of a measurement is. Hubs and peripherals are spread over four rooms, and
/// every layout keeps the four rooms apart.
struct HallSize
{
    int hubs = 4;
    int peripherals = 0;
    int layouts = 10;
};

/// Fills an empty document as the steps up to the preset names would.
void fillDocument(IDocAccessor& doc, const HallSize& size);

/// The address of a device by its number, hubs first.
QString benchAddress(int device);
