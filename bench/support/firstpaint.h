#pragma once

/// Ends the program, with success, as soon as its first picture has been painted on the screen.
/// Called once the application object exists; the rest happens in its event loop.
void exitAfterFirstPicture();
