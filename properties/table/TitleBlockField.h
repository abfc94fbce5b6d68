#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace properties {

// The property a title block text box shows, read from its formatted text: the 38
// characters that follow "FormatID=" and its opening quote, and the leading number that
// follows "PropertyID=" and its quote. Any text gives a defined answer:
// - no "FormatID=": no field;
// - fewer than 38 characters after it: the shorter identifier, which names no set;
// - no "PropertyID=", or no number behind it: identifier 0, which is collected and never listed;
// - a number beyond a 16-bit integer, or beyond a double: no field, as the platform's
//   conversion would overflow.
struct TitleBlockField {
    std::string formatId;
    std::int16_t propertyId = 0;
};

std::optional<TitleBlockField> ParseTitleBlockField(std::string_view formattedText);

}  // namespace properties
