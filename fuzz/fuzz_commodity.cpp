// The commodity list file, whatever it holds: every entry it gives is UTF-8 and not empty.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "properties/table/CommodityList.h"
#include "support/Text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const auto& entry :
         properties::ReadCommodityEntries(std::string_view(reinterpret_cast<const char*>(data), size))) {
        if (entry.empty() || !support::IsUtf8(entry)) __builtin_trap();
        properties::CommodityCode(entry);
    }
    return 0;
}
