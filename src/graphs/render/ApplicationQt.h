// The Qt application that fonts and pictures need. The command line runs
// without a display: then the "offscreen" platform serves.
#pragma once

namespace norvane {

// Creates a QGuiApplication the first time it is called, unless the program
// already has one. With neither DISPLAY nor WAYLAND_DISPLAY set, the platform
// becomes "offscreen".
void AssurerApplicationQt();

}  // namespace norvane
