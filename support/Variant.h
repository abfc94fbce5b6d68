#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <variant>

namespace support {

// Base of every object a Variant can carry (host objects, pictures...).
class Object {
public:
    virtual ~Object() = default;
};

// 64-bit fixed point with four decimals, as the host's currency type.
struct Currency {
    std::int64_t scaled = 0;  // value * 10000
    static Currency FromDouble(double v);
    double ToDouble() const { return static_cast<double>(scaled) / 10000.0; }
    friend bool operator==(Currency a, Currency b) { return a.scaled == b.scaled; }
};

// A date as the host stores it: days since 1899-12-30, the fraction is the time of day.
struct Date {
    double serial = 0;
    friend bool operator==(Date a, Date b) { return a.serial == b.serial; }
};

enum class VariantType { Empty, Boolean, Integer, Long, Double, Currency, Date, String, Object };

// The value type that crosses the host interface: property values, attribute values.
class Variant {
public:
    Variant() = default;
    Variant(bool b) : v_(b) {}
    Variant(std::int16_t i) : v_(i) {}
    Variant(std::int32_t i) : v_(i) {}
    Variant(double d) : v_(d) {}
    Variant(Currency c) : v_(c) {}
    Variant(Date d) : v_(d) {}
    Variant(std::string s) : v_(std::move(s)) {}
    Variant(const char* s) : v_(std::string(s)) {}
    Variant(std::shared_ptr<Object> o) : v_(std::move(o)) {}

    VariantType Type() const { return static_cast<VariantType>(v_.index()); }
    bool IsEmpty() const { return Type() == VariantType::Empty; }

    // Text as the platform converts it: numbers with 15 significant digits,
    // booleans "True"/"False", dates in "General Date", currency without trailing zeros.
    std::string ToText() const;
    double ToDouble() const;  // throws type mismatch for text that is not numeric
    bool ToBool() const;
    std::shared_ptr<Object> ToObject() const;

    template <class T>
    const T* As() const {
        return std::get_if<T>(&v_);
    }

    // A readable form for transcripts: the type and the value, e.g. currency 12.5000.
    std::string Describe() const;

    friend bool operator==(const Variant& a, const Variant& b) { return a.v_ == b.v_; }

private:
    std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, Currency, Date, std::string,
                 std::shared_ptr<Object>>
        v_;
};

const char* TypeName(VariantType t);

}  // namespace support
