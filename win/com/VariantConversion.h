#pragma once
#include "support/Variant.h"
#include "win/com/Ole.h"

namespace win::com {

// A VARIANT that clears itself: whatever it holds (a BSTR, an object, an array) is freed.
class ComVariant {
public:
    ComVariant() { VariantInit(&v_); }
    explicit ComVariant(const support::Variant& value);
    ComVariant(const ComVariant&) = delete;
    ComVariant& operator=(const ComVariant&) = delete;
    ~ComVariant() { VariantClear(&v_); }
    VARIANT& Get() { return v_; }
    const VARIANT& Get() const { return v_; }
    // Hands the contents to the caller (an out parameter of ours) and leaves this empty.
    void MoveTo(VARIANT& out) {
        out = v_;
        VariantInit(&v_);
    }

private:
    VARIANT v_;
};

// The host's value as the add-in sees it. Numbers take the nearest type the add-in has
// (a byte is an Integer, an unsigned long that fits is a Long, a float a Double); Null and
// a missing optional argument are Empty; an object is a ComObject, a one-dimensional
// SAFEARRAY an Array. Anything else is a type mismatch.
support::Variant FromVariant(const VARIANT& v);

// The add-in's value as COM carries it, into out (which must hold nothing that needs
// freeing). Objects cross only as ComObject or Array: anything else is a type mismatch.
void ToVariant(const support::Variant& value, VARIANT& out);

}  // namespace win::com
