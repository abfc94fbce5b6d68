// The session script parser on any text: it answers lines or a script error.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "app/session/Script.h"
#include "ui/headless/ScriptError.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        session::ParseScript(std::string_view(reinterpret_cast<const char*>(data), size));
    } catch (const ui::headless::ScriptError&) {
    }
    return 0;
}
