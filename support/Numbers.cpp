// Number texts with fixed en-US rules: Val, IsNumeric, and the platform's ways of
// printing doubles and currency.
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

#include "support/Decimal.h"
#include "support/Text.h"

namespace support {

using detail::Decimal;

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// Reads "[eE][+-]digits" at pos into exp; leaves pos alone when there is no complete
// exponent, so "12e" and "12e+" stop before the "e". Huge exponents are clamped: the
// value is out of any range long before.
bool ReadExponent(std::string_view s, std::size_t& pos, int& exp) {
    std::size_t p = pos;
    if (p >= s.size() || (s[p] != 'e' && s[p] != 'E')) return false;
    ++p;
    bool negative = false;
    if (p < s.size() && (s[p] == '+' || s[p] == '-')) negative = s[p++] == '-';
    if (p >= s.size() || !IsDigit(s[p])) return false;
    long value = 0;
    for (; p < s.size() && IsDigit(s[p]); ++p)
        if (value < 100000) value = value * 10 + (s[p] - '0');
    exp = static_cast<int>(negative ? -value : value);
    pos = p;
    return true;
}

// The numeric-text rules shared by IsNumeric, ParseNumber and ParseCurrency:
//   blanks* [sign] ["$"] [sign] mantissa [exponent] [sign] blanks*
// with at most one sign, leading or trailing, and "$" before or after a leading sign.
// The mantissa has digits with "," allowed only between two digits of the integer part.
// Group widths are not checked: the classic platform takes "1,2" and "12,34,5" as 12 and
// 12345, and stored texts written by it must keep reading back as numbers.
// Not taken: parentheses for negatives, "&H" hex, a trailing "$", blanks inside.
std::optional<Decimal> ScanNumber(std::string_view s) {
    std::size_t begin = 0, end = s.size();
    while (begin < end && IsBlank(s[begin])) ++begin;
    while (end > begin && IsBlank(s[end - 1])) --end;
    s = s.substr(begin, end - begin);

    Decimal out;
    std::size_t pos = 0;
    bool signSeen = false, dollarSeen = false;
    for (;;) {
        if (pos < s.size() && (s[pos] == '+' || s[pos] == '-') && !signSeen) {
            signSeen = true;
            out.negative = s[pos++] == '-';
        } else if (pos < s.size() && s[pos] == '$' && !dollarSeen) {
            dollarSeen = true;
            ++pos;
        } else {
            break;
        }
    }

    int fractionDigits = 0;
    bool anyDigit = false;
    for (; pos < s.size(); ++pos) {
        char c = s[pos];
        if (IsDigit(c)) {
            out.digits.push_back(c);
            anyDigit = true;
        } else if (c == ',' && anyDigit && pos + 1 < s.size() && IsDigit(s[pos + 1])) {
            continue;
        } else {
            break;
        }
    }
    if (pos < s.size() && s[pos] == '.') {
        for (++pos; pos < s.size() && IsDigit(s[pos]); ++pos) {
            out.digits.push_back(s[pos]);
            ++fractionDigits;
            anyDigit = true;
        }
    }
    if (!anyDigit) return std::nullopt;

    int exp = 0;
    ReadExponent(s, pos, exp);
    out.exponent = exp - fractionDigits;

    if (pos < s.size() && (s[pos] == '+' || s[pos] == '-') && !signSeen) out.negative = s[pos++] == '-';
    if (pos != s.size()) return std::nullopt;
    return out;
}

}  // namespace

// The classic Val: blanks, tabs and line feeds are dropped wherever they are, then the
// longest leading number is read; "&H" and the "D" exponent are not recognised.
double Val(std::string_view s) {
    std::string text;
    for (char c : s)
        if (c != ' ' && c != '\t' && c != '\n') text.push_back(c);

    Decimal number;
    std::size_t pos = 0;
    if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) number.negative = text[pos++] == '-';
    for (; pos < text.size() && IsDigit(text[pos]); ++pos) number.digits.push_back(text[pos]);
    int fractionDigits = 0;
    if (pos < text.size() && text[pos] == '.') {
        for (++pos; pos < text.size() && IsDigit(text[pos]); ++pos, ++fractionDigits)
            number.digits.push_back(text[pos]);
    }
    if (number.digits.empty()) return 0;
    int exp = 0;
    ReadExponent(text, pos, exp);
    number.exponent = exp - fractionDigits;

    std::optional<double> value = detail::DecimalToDouble(number);
    if (!value) detail::ThrowOverflow();
    return *value == 0 ? 0.0 : *value;  // no "-0" from "-0"
}

bool IsNumeric(std::string_view s) {
    return ParseNumber(s).has_value();
}

std::optional<double> ParseNumber(std::string_view s) {
    std::optional<Decimal> number = ScanNumber(s);
    if (!number) return std::nullopt;
    std::optional<double> value = detail::DecimalToDouble(*number);
    if (value && *value == 0) return 0.0;
    return value;
}

std::optional<Currency> ParseCurrency(std::string_view s) {
    std::optional<Decimal> number = ScanNumber(s);
    if (!number) return std::nullopt;
    std::optional<std::int64_t> scaled = detail::DecimalToScaled(*number, 4);
    if (!scaled) return std::nullopt;
    return Currency{*scaled};
}

// Fifteen significant digits; fixed notation for decimal exponents -4..14, otherwise
// "1.5E+20" with a signed exponent of at least two digits, as the platform prints them.
std::string NumberToText(double d) {
    if (std::isnan(d)) return "NaN";
    if (std::isinf(d)) return d > 0 ? "Infinity" : "-Infinity";
    if (d == 0) return "0";

    char buf[64];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf - 1, d, std::chars_format::scientific, 14);
    *end = '\0';  // for atoi below
    std::string_view text(buf, static_cast<std::size_t>(end - buf));
    bool negative = text.front() == '-';
    if (negative) text.remove_prefix(1);
    std::size_t e = text.find('e');
    std::string digits;
    for (char c : text.substr(0, e))
        if (c != '.') digits.push_back(c);
    while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
    int exp = std::atoi(text.data() + e + 1);

    std::string out = negative ? "-" : "";
    if (exp >= 15 || exp < -4) {
        out += digits[0];
        if (digits.size() > 1) out += "." + digits.substr(1);
        std::string expDigits = std::to_string(std::abs(exp));
        if (expDigits.size() < 2) expDigits.insert(0, "0");
        out += (exp < 0 ? "E-" : "E+") + expDigits;
    } else if (exp >= 0) {
        auto intDigits = static_cast<std::size_t>(exp) + 1;
        if (digits.size() <= intDigits) {
            out += digits + std::string(intDigits - digits.size(), '0');
        } else {
            out += digits.substr(0, intDigits) + "." + digits.substr(intDigits);
        }
    } else {
        out += "0." + std::string(static_cast<std::size_t>(-exp - 1), '0') + digits;
    }
    return out;
}

std::string CurrencyToText(Currency c) {
    return detail::FormatCurrency(c, true);
}

// Rounds half away from zero on the printed digits, so 2.5 -> "3" and 1.0000005 -> "1.000001".
// A value that rounds to zero prints without a sign.
std::string FormatFixed(double d, int decimals) {
    if (decimals < 0) detail::ThrowInvalidCall();
    if (!std::isfinite(d)) return NumberToText(d);
    Decimal number = detail::DecimalFromDouble(d);
    std::string digits = detail::RoundedDigits(number, decimals);
    bool zero = digits == "0";
    auto width = static_cast<std::size_t>(decimals) + 1;
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    if (decimals > 0) digits.insert(digits.size() - static_cast<std::size_t>(decimals), ".");
    return (number.negative && !zero) ? "-" + digits : digits;
}

}  // namespace support
