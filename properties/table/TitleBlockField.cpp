#include "properties/table/TitleBlockField.h"

#include <cmath>

#include "support/Error.h"
#include "support/Text.h"

namespace properties {

namespace {

constexpr std::string_view kFormatKey = "FormatID=";
constexpr std::string_view kPropertyKey = "PropertyID=";
constexpr std::size_t kFormatIdLength = 38;

// The substring from `start` on, empty when the text is shorter.
std::string_view From(std::string_view text, std::size_t start) {
    return start < text.size() ? text.substr(start) : std::string_view();
}

}  // namespace

std::optional<TitleBlockField> ParseTitleBlockField(std::string_view formattedText) {
    auto format = formattedText.find(kFormatKey);
    if (format == std::string_view::npos) return std::nullopt;
    TitleBlockField field;
    field.formatId =
        std::string(From(formattedText, format + kFormatKey.size() + 1).substr(0, kFormatIdLength));

    auto property = formattedText.find(kPropertyKey);
    if (property != std::string_view::npos) {
        // Rounded to even at .5, as the platform's 16-bit conversion does. A number too
        // large even for a double ("5e5555") overflows like one beyond 16 bits.
        double number = 0;
        try {
            number = std::nearbyint(support::Val(From(formattedText, property + kPropertyKey.size() + 1)));
        } catch (const support::Error&) {
            return std::nullopt;
        }
        if (!(number >= INT16_MIN && number <= INT16_MAX)) return std::nullopt;
        field.propertyId = static_cast<std::int16_t>(number);
    }
    return field;
}

}  // namespace properties
