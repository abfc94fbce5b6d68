#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "support/Variant.h"

// The string, number and date semantics the add-in relies on from its original
// platform. Positions are 1-based and counted in bytes; the add-in's texts are ANSI.
// Locale rules are fixed to en-US so that runs repeat exactly on any machine.
namespace support {

std::string Left(std::string_view s, long n);  // n < 0 is an invalid-call error
std::string Right(std::string_view s, long n);
std::string Mid(std::string_view s, long start);               // the rest from start; start >= 1
std::string Mid(std::string_view s, long start, long length);  // length < 0 is an invalid-call error
long InStr(std::string_view haystack, std::string_view needle, long start = 1);  // 0 when absent
long InStrRev(std::string_view haystack, std::string_view needle);
std::string Trim(std::string_view s);  // spaces only, as the platform does
// Well-formed UTF-8: no overlong forms, no surrogates, nothing beyond U+10FFFF.
bool IsUtf8(std::string_view s);
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
std::string UCase(std::string_view s);
std::string LCase(std::string_view s);
std::string Replace(std::string_view s, std::string_view find, std::string_view with);

// Val: the leading number of a text, blanks ignored, 0 when there is none ("12abc" -> 12).
double Val(std::string_view s);

// IsNumeric with en-US rules: optional blanks, sign, thousands separators ",",
// one ".", exponent, a leading "$"; empty text is not numeric.
bool IsNumeric(std::string_view s);
std::optional<double> ParseNumber(std::string_view s);      // the same rules, the value
std::optional<Currency> ParseCurrency(std::string_view s);  // numeric and in currency range

// Double to text with 15 significant digits and no trailing zeros ("12.5", "1E+20").
std::string NumberToText(double d);
std::string CurrencyToText(Currency c);           // "12.5"
std::string FormatFixed(double d, int decimals);  // Format(d, "0.000000") with 6

// Dates, en-US: "M/D/YYYY", "M/D/YY", "YYYY-MM-DD", month names ("Jan 5, 2024"),
// with an optional time "h:mm[:ss] [AM|PM]".
bool IsDate(std::string_view s);
std::optional<Date> ParseDate(std::string_view s);
Date MakeDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
// "General Date": "1/5/2024", "1/5/2024 3:04:05 PM", or the time alone for day 0.
std::string FormatGeneralDate(Date d);

}  // namespace support
