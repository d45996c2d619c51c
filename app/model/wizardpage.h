#pragma once

/// The wizard's pages in step order. The value of each is its index.
enum class WizardPage
{
    Introduction,
    RoomDesign,
    DeviceLocation,
    CreateScene,
    Configure,
    DanteSpeaker,
    CreatePreset,
    Install,
    Finish
};

/// The number of pages.
inline constexpr int pageCount = int(WizardPage::Finish) + 1;

/// The number that the user knows a page by, from 1; its title begins with it.
constexpr int stepNumber(WizardPage page)
{
    return int(page) + 1;
}
