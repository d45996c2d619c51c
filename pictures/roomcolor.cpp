#include "roomcolor.h"

QColor roomColor(int room, const QColor& fallback)
{
    switch (room) {
    case 1:
        return {0xB0, 0x68, 0x00};
    case 2:
        return {0x44, 0x84, 0x47};
    case 3:
        return {0x14, 0x5C, 0x97};
    case 4:
        return {0xA2, 0x1E, 0x0E};
    default:
        return fallback;
    }
}
