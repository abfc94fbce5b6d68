#pragma once
#include <cstdint>

#include "support/Error.h"

namespace support {

// Runs f and returns the number of the support::Error it throws, 0 if none.
template <class F>
std::int32_t ErrorNumber(F f) {
    try {
        f();
    } catch (const Error& e) {
        return e.Number();
    }
    return 0;
}

}  // namespace support
