#include "darkpalette.h"

#include <QPalette>

namespace {

constexpr QColor window(0x2A, 0x2E, 0x32);
constexpr QColor list(0x1B, 0x1E, 0x20);
constexpr QColor button(0x31, 0x36, 0x3B);
constexpr QColor text(0xFC, 0xFC, 0xFC);
constexpr QColor dimText(0xA1, 0xA9, 0xB1);
constexpr QColor disabledText(0x6E, 0x71, 0x75);
constexpr QColor selection(0x3D, 0xAE, 0xE9);
constexpr QColor linkText(0x1D, 0x99, 0xF3);

} // namespace

QPalette darkPalette()
{
    QPalette palette(text, button, button.lighter(150), button.darker(150), button.darker(120),
                     text, Qt::white, list, window);
    palette.setColor(QPalette::AlternateBase, button.darker(120));
    palette.setColor(QPalette::Highlight, selection);
    palette.setColor(QPalette::HighlightedText, text);
    palette.setColor(QPalette::PlaceholderText, dimText);
    palette.setColor(QPalette::ToolTipBase, button);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Link, linkText);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, button);
    return palette;
}
