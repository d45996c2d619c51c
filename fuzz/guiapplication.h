#pragma once

/// Makes the application that pictures need, once, without a display.
void provideGuiApplication();
