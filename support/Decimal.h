#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include "support/Variant.h"

// Decimal digits as the meeting point of text, doubles and currency. Rounding on the
// digits a value prints as, rather than on its binary approximation, is what makes
// 1.00005 become 1.0001 the way the person who typed it expects; and text goes to
// currency without passing through a double, so all of its 19 digits survive.
// Internal to support/.
namespace support::detail {

// The value digits x 10^exponent. digits holds only '0'..'9' and may be empty or carry
// leading zeros; both mean the same value as without them.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

// The shortest decimal that reads back as d; d must be finite.
Decimal DecimalFromDouble(double d);

// The nearest double, nullopt when the magnitude is beyond the double range. Values too
// small for a double become zero.
std::optional<double> DecimalToDouble(const Decimal& d);

// |value| x 10^decimals rounded half away from zero, without leading zeros ("0" for zero).
std::string RoundedDigits(const Decimal& d, int decimals);

// value x 10^decimals rounded half away from zero, nullopt outside the 64-bit range.
std::optional<std::int64_t> DecimalToScaled(const Decimal& d, int decimals);

// Currency as plain digits: "-12.5" with trimZeros, "-12.5000" without.
std::string FormatCurrency(Currency c, bool trimZeros);

// Error texts the platform uses with these numbers.
[[noreturn]] void ThrowInvalidCall();
[[noreturn]] void ThrowTypeMismatch();
[[noreturn]] void ThrowOverflow();

}  // namespace support::detail
