// Shows every dialog of the add-in as designed and writes a picture of each window,
// FOLDER\frmName.bmp, as the screen shows it: run it on a desktop that draws (scripts/screenshots).
//   tarnwell-dialogs.exe FOLDER
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

#include "addin/EveryDialog.h"
#include "settings/Settings.h"
#include "ui/win32/DesktopPlatform.h"
#include "ui/win32/FormWindow.h"
#include "win/files/Win32FileSystem.h"

namespace {

// Lets the window and its controls paint themselves, and the display catch up.
void LetItPaint(HWND window) {
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    for (int round = 0; round < 10; ++round) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        Sleep(30);
    }
}

// What the window shows, its frame and caption with it, as a 24-bit BMP file.
bool WriteWindowPicture(HWND window, const std::filesystem::path& file) {
    RECT r;
    GetWindowRect(window, &r);
    int width = r.right - r.left, height = r.bottom - r.top;
    HDC screen = GetWindowDC(window);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, 0, 0, SRCCOPY);
    SelectObject(memory, old);

    BITMAPINFOHEADER info{sizeof info, width, height, 1, 24, BI_RGB};
    int stride = (width * 3 + 3) & ~3;
    std::vector<char> pixels(static_cast<std::size_t>(stride) * height);
    GetDIBits(memory, bitmap, 0, height, pixels.data(), reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, screen);

    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;  // "BM"
    header.bfOffBits = sizeof header + sizeof info;
    header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&header), sizeof header);
    out.write(reinterpret_cast<const char*>(&info), sizeof info);
    out.write(pixels.data(), static_cast<std::streamsize>(pixels.size()));
    return static_cast<bool>(out);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: tarnwell-dialogs FOLDER\n");
        return 2;
    }
    std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    ui::win32::DesktopPlatform platform;
    settings::IniFileStore store(std::filesystem::temp_directory_path() / "tarnwell-dialogs.ini");
    win::files::Win32FileSystem disk;
    addin::AddinState state({platform, store, disk});
    int written = 0;
    for (ui::Form* form : addin::EveryDialog(state)) {
        form->BuildDesign();
        form->Left = form->Top = 240;
        ui::win32::FormWindow window(*form);
        window.Create(nullptr);
        ShowWindow(window.Window(), SW_SHOW);
        SetForegroundWindow(window.Window());
        LetItPaint(window.Window());
        std::filesystem::path file = folder / (form->Name() + ".bmp");
        if (!WriteWindowPicture(window.Window(), file)) {
            std::fprintf(stderr, "cannot write %s\n", file.string().c_str());
            return 1;
        }
        std::printf("%s\n", file.string().c_str());
        ++written;
    }
    return written > 0 ? 0 : 1;
}
