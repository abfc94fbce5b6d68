// A title block text box's formatted text, whatever it holds.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "properties/table/TitleBlockField.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto field =
        properties::ParseTitleBlockField(std::string_view(reinterpret_cast<const char*>(data), size));
    if (field && field->formatId.size() > 38) __builtin_trap();
    return 0;
}
