#pragma once
// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace ui::win32 {

// What a picture button shows for the name its form gives the picture: the system's own
// image where it has one, else a short text that says the same, else the name.
struct PictureLook {
    HICON icon = nullptr;
    std::wstring text;
};
PictureLook LookOfPicture(const std::string& name);

}  // namespace ui::win32
