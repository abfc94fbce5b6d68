// The stand-in's document reader on any text: it answers a document or a clear error.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "simhost/SimFormat.h"
#include "support/Error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        simhost::format::Write(simhost::format::Read(text, "C:\\Fuzz.ipt"));
    } catch (const support::Error&) {
    }
    return 0;
}
