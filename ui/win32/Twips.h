#pragma once
// clang-format off
#include <windows.h>
// clang-format on

namespace ui::win32 {

// Forms lay themselves out in twips (1440 to the inch), as on the original platform; the
// screen counts pixels at its own DPI, so a dialog keeps its proportions on any screen.
inline int TwipsToPixels(int twips, int dpi) {
    return MulDiv(twips, dpi, 1440);
}

// The screen's logical DPI, as the desktop reports it (96 unless the user enlarged text).
inline int ScreenDpi() {
    HDC screen = GetDC(nullptr);
    int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : 96;
}

}  // namespace ui::win32
