// Sets the application's font, palette, style and icon.
#pragma once

namespace quillet {

/// Loads the font and sets the palette, style and icon. Call once, before the first window.
void InstallTheme();

}  // namespace quillet
