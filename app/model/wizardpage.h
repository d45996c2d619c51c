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
inline constexpr int pageTotal = int(WizardPage::Finish) + 1;
