#include "support/Variant.h"

#include <cmath>
#include <string>

#include "support/Decimal.h"
#include "support/Error.h"
#include "support/Text.h"

namespace support {

// Rounds on the digits the double prints as (see Decimal.h), half away from zero.
Currency Currency::FromDouble(double v) {
    if (!std::isfinite(v)) detail::ThrowOverflow();
    std::optional<std::int64_t> scaled = detail::DecimalToScaled(detail::DecimalFromDouble(v), 4);
    if (!scaled) detail::ThrowOverflow();
    return Currency{*scaled};
}

std::string Variant::ToText() const {
    switch (Type()) {
        case VariantType::Empty:
            return "";
        case VariantType::Boolean:
            return *As<bool>() ? "True" : "False";
        case VariantType::Integer:
            return std::to_string(*As<std::int16_t>());
        case VariantType::Long:
            return std::to_string(*As<std::int32_t>());
        case VariantType::Double:
            return NumberToText(*As<double>());
        case VariantType::Currency:
            return CurrencyToText(*As<Currency>());
        case VariantType::Date:
            return FormatGeneralDate(*As<Date>());
        case VariantType::String:
            return *As<std::string>();
        case VariantType::Object:
            break;
    }
    detail::ThrowTypeMismatch();
}

double Variant::ToDouble() const {
    switch (Type()) {
        case VariantType::Empty:
            return 0;
        case VariantType::Boolean:
            return *As<bool>() ? -1 : 0;  // the platform's True is -1
        case VariantType::Integer:
            return *As<std::int16_t>();
        case VariantType::Long:
            return *As<std::int32_t>();
        case VariantType::Double:
            return *As<double>();
        case VariantType::Currency:
            return As<Currency>()->ToDouble();
        case VariantType::Date:
            return As<Date>()->serial;
        case VariantType::String:
            if (std::optional<double> d = ParseNumber(*As<std::string>())) return *d;
            break;
        case VariantType::Object:
            break;
    }
    detail::ThrowTypeMismatch();
}

// Text converts when it says True or False in any case, or is a number.
bool Variant::ToBool() const {
    if (const std::string* s = As<std::string>()) {
        std::string word = LCase(Trim(*s));
        if (word == "true") return true;
        if (word == "false") return false;
        if (std::optional<double> d = ParseNumber(*s)) return *d != 0;
        detail::ThrowTypeMismatch();
    }
    if (const Currency* c = As<Currency>()) return c->scaled != 0;
    return ToDouble() != 0;
}

// Only an object converts; a null object is "Nothing" and comes back as nullptr.
std::shared_ptr<Object> Variant::ToObject() const {
    if (const auto* o = As<std::shared_ptr<Object>>()) return *o;
    detail::ThrowTypeMismatch();
}

std::string Variant::Describe() const {
    switch (Type()) {
        case VariantType::Empty:
            return "empty";
        case VariantType::Boolean:
        case VariantType::Integer:
        case VariantType::Long:
        case VariantType::Double:
            return LCase(TypeName(Type())) + " " + ToText();
        case VariantType::Currency:
            return "currency " + detail::FormatCurrency(*As<Currency>(), false);
        case VariantType::Date:
            try {
                return "date " + FormatGeneralDate(*As<Date>());
            } catch (const Error&) {
                // A transcript must still show a serial no calendar can hold.
                return "date serial " + NumberToText(As<Date>()->serial);
            }
        case VariantType::String: {
            // Inner quotes doubled, so the text's end stays unambiguous in a transcript line.
            return "text \"" + Replace(*As<std::string>(), "\"", "\"\"") + "\"";
        }
        case VariantType::Object:
            return *As<std::shared_ptr<Object>>() ? "object" : "object Nothing";
    }
    return "";
}

const char* TypeName(VariantType t) {
    switch (t) {
        case VariantType::Empty:
            return "Empty";
        case VariantType::Boolean:
            return "Boolean";
        case VariantType::Integer:
            return "Integer";
        case VariantType::Long:
            return "Long";
        case VariantType::Double:
            return "Double";
        case VariantType::Currency:
            return "Currency";
        case VariantType::Date:
            return "Date";
        case VariantType::String:
            return "String";
        case VariantType::Object:
            return "Object";
    }
    return "Unknown";
}

}  // namespace support
