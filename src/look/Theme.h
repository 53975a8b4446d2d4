// Dresses the application: its font, palette, style and icon.
#pragma once

namespace quillet {

/// Loads the font and gives the application its palette and icon. Once, before the first window.
void InstallTheme();

}  // namespace quillet
