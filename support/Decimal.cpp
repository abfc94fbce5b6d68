#include "support/Decimal.h"

#include <charconv>
#include <cstdlib>
#include <limits>
#include <string_view>
#include <system_error>

#include "support/Error.h"

namespace support::detail {

namespace {

std::string_view WithoutLeadingZeros(const std::string& digits) {
    std::string_view v(digits);
    while (!v.empty() && v.front() == '0') v.remove_prefix(1);
    return v;
}

}  // namespace

Decimal DecimalFromDouble(double d) {
    // Shortest round-trip form, "d.ddde+XX": std::to_chars is exact and ignores the C locale.
    char buf[64];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf - 1, d, std::chars_format::scientific);
    *end = '\0';  // for atoi below
    Decimal out;
    const char* p = buf;
    if (*p == '-') {
        out.negative = true;
        ++p;
    }
    int fractionDigits = 0;
    bool inFraction = false;
    for (; p < end && *p != 'e'; ++p) {
        if (*p == '.') {
            inFraction = true;
            continue;
        }
        out.digits.push_back(*p);
        if (inFraction) ++fractionDigits;
    }
    int exp = (p < end) ? std::atoi(p + 1) : 0;  // atoi takes the "+"/"-" itself
    out.exponent = exp - fractionDigits;
    return out;
}

std::optional<double> DecimalToDouble(const Decimal& d) {
    std::string_view digits = WithoutLeadingZeros(d.digits);
    if (digits.empty()) return d.negative ? -0.0 : 0.0;
    // Decide the far ends from the magnitude so that a long exponent never reaches the
    // converter: the value lies in [10^(magnitude-1), 10^magnitude).
    long long magnitude = static_cast<long long>(d.exponent) + static_cast<long long>(digits.size());
    if (magnitude > 310) return std::nullopt;
    if (magnitude < -330) return d.negative ? -0.0 : 0.0;
    std::string text(digits);
    text += 'e';
    text += std::to_string(d.exponent);
    double value = 0;
    auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec == std::errc::result_out_of_range) {
        if (magnitude > 0) return std::nullopt;
        value = 0;
    }
    return d.negative ? -value : value;
}

std::string RoundedDigits(const Decimal& d, int decimals) {
    std::string_view digits = WithoutLeadingZeros(d.digits);
    long long shift = static_cast<long long>(d.exponent) + decimals;
    std::string out;
    if (shift >= 0) {
        out.assign(digits);
        if (!out.empty()) out.append(static_cast<std::size_t>(shift), '0');
    } else {
        long long keep = static_cast<long long>(digits.size()) + shift;
        if (keep >= 0) {
            out.assign(digits.substr(0, static_cast<std::size_t>(keep)));
            // Half away from zero on the magnitude: the first dropped digit decides.
            if (digits[static_cast<std::size_t>(keep)] >= '5') {
                std::size_t i = out.size();
                while (i > 0 && out[i - 1] == '9') out[--i] = '0';
                if (i == 0)
                    out.insert(out.begin(), '1');
                else
                    ++out[i - 1];
            }
        }
    }
    std::size_t first = out.find_first_not_of('0');
    return first == std::string::npos ? std::string("0") : out.substr(first);
}

std::optional<std::int64_t> DecimalToScaled(const Decimal& d, int decimals) {
    std::string_view digits = WithoutLeadingZeros(d.digits);
    if (digits.empty()) return 0;
    long long magnitude =
        static_cast<long long>(d.exponent) + static_cast<long long>(digits.size()) + decimals;
    if (magnitude > 20) return std::nullopt;  // keeps RoundedDigits from spelling out huge exponents
    std::string rounded = RoundedDigits(d, decimals);
    if (rounded.size() > 19) return std::nullopt;
    std::uint64_t value = 0;
    for (char c : rounded) value = value * 10 + static_cast<std::uint64_t>(c - '0');
    constexpr std::uint64_t kMaxPositive =
        static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (!d.negative) {
        if (value > kMaxPositive) return std::nullopt;
        return static_cast<std::int64_t>(value);
    }
    if (value > kMaxPositive + 1) return std::nullopt;
    if (value == kMaxPositive + 1) return std::numeric_limits<std::int64_t>::min();
    return -static_cast<std::int64_t>(value);
}

std::string FormatCurrency(Currency c, bool trimZeros) {
    // Work on the unsigned magnitude so that the most negative value has one too.
    bool negative = c.scaled < 0;
    std::uint64_t magnitude = negative ? std::uint64_t{0} - static_cast<std::uint64_t>(c.scaled)
                                       : static_cast<std::uint64_t>(c.scaled);
    std::string whole = std::to_string(magnitude / 10000);
    std::string fraction = std::to_string(magnitude % 10000);
    fraction.insert(0, 4 - fraction.size(), '0');
    if (trimZeros) {
        while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
    }
    std::string out = negative ? "-" : "";
    out += whole;
    if (!fraction.empty()) out += "." + fraction;
    return out;
}

void ThrowInvalidCall() {
    throw Error(errors::kInvalidCall, "Invalid procedure call or argument");
}
void ThrowTypeMismatch() {
    throw Error(errors::kTypeMismatch, "Type mismatch");
}
void ThrowOverflow() {
    throw Error(errors::kOverflow, "Overflow");
}

}  // namespace support::detail
