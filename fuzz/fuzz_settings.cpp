// The settings file as a person may have left it: any bytes, then a read and a save.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "settings/Settings.h"
#include "support/Error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto file = std::filesystem::temp_directory_path() / "tarnwell-fuzz-settings.ini";
    std::ofstream(file, std::ios::binary | std::ios::trunc).write(reinterpret_cast<const char*>(data), size);
    settings::IniFileStore store(file);
    store.GetSetting("Tarnwell", "Preview", "DialogTop", "0");
    try {
        store.SaveSetting("Tarnwell", "Preview", "DialogTop", "120");
    } catch (const support::Error&) {
    }
    if (store.GetSetting("Tarnwell", "Preview", "DialogTop", "0") != "120") __builtin_trap();
    return 0;
}
