#include <gtest/gtest.h>

#include "support/Error.h"
#include "tests/unit/test_support.h"
#include "win/com/Bstr.h"
#include "win/com/ComObject.h"
#include "win/com/DispatchObject.h"
#include "win/com/VariantConversion.h"

namespace win::com {
namespace {

using support::Variant;
using test_support::ErrorNumber;

Variant RoundTrip(const Variant& v) {
    ComVariant com(v);
    return FromVariant(com.Get());
}

// The array a value holds; the value must outlive the pointer.
const Array* ArrayIn(const Variant& v) {
    return dynamic_cast<const Array*>(v.ToObject().get());
}

TEST(VariantConversion, EveryValueTypeRoundTripsWithItsComType) {
    struct Case {
        Variant value;
        VARTYPE comType;
    };
    Case cases[] = {
        {Variant(), VT_EMPTY},
        {Variant(true), VT_BOOL},
        {Variant(std::int16_t(-7)), VT_I2},
        {Variant(std::int32_t(100000)), VT_I4},
        {Variant(2.5), VT_R8},
        {Variant(support::Currency{123456789}), VT_CY},
        {Variant(support::Date{45000.25}), VT_DATE},
        {Variant("Gr\xC3\xB6\xC3\x9F"
                 "e"),
         VT_BSTR},
        {Variant(std::shared_ptr<support::Object>()), VT_DISPATCH},
    };
    for (const Case& c : cases) {
        ComVariant com(c.value);
        EXPECT_EQ(V_VT(&com.Get()), c.comType) << c.value.Describe();
        EXPECT_EQ(FromVariant(com.Get()), c.value) << c.value.Describe();
    }
    // The platform's True is -1.
    EXPECT_EQ(V_BOOL(&ComVariant(Variant(true)).Get()), VARIANT_TRUE);
}

TEST(VariantConversion, HostTypesTakeTheNearestValueType) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_UI1;
    V_UI1(&v) = 200;
    EXPECT_EQ(FromVariant(v), Variant(std::int16_t(200)));
    V_VT(&v) = VT_UI4;
    V_UI4(&v) = 4000000000u;  // past a Long: a Double keeps it
    EXPECT_EQ(FromVariant(v), Variant(4000000000.0));
    V_VT(&v) = VT_R4;
    V_R4(&v) = 0.5f;
    EXPECT_EQ(FromVariant(v), Variant(0.5));
    V_VT(&v) = VT_NULL;
    EXPECT_TRUE(FromVariant(v).IsEmpty());
    V_VT(&v) = VT_ERROR;
    V_ERROR(&v) = DISP_E_PARAMNOTFOUND;  // a left-out optional argument
    EXPECT_TRUE(FromVariant(v).IsEmpty());
    // A value passed by reference is read through the reference.
    LONG target = 42;
    V_VT(&v) = VT_I4 | VT_BYREF;
    V_I4REF(&v) = &target;
    EXPECT_EQ(FromVariant(v), Variant(std::int32_t(42)));
    V_VT(&v) = VT_RECORD;
    EXPECT_EQ(ErrorNumber([&] { FromVariant(v); }), support::errors::kTypeMismatch);
}

TEST(VariantConversion, OnlyComObjectsCrossAndKeepTheirIdentity) {
    struct Plain : support::Object {};
    EXPECT_EQ(ErrorNumber([] { ComVariant refused{Variant(std::make_shared<Plain>())}; }),
              support::errors::kTypeMismatch);

    struct Empty : DispatchObject<> {
        std::span<const Member> Members() const override { return {}; }
        Variant Call(DISPID, WORD, const InvokeArgs&) override { return {}; }
        bool Answers(REFIID) const override { return false; }
    };
    {
        ComPtr<Empty> object = DispatchObject<>::Make<Empty>();
        Variant wrapped(std::make_shared<ComObject>(ComPtr<IDispatch>(object.Get())));
        Variant back = RoundTrip(wrapped);
        auto* com = dynamic_cast<const ComObject*>(back.ToObject().get());
        ASSERT_NE(com, nullptr);
        EXPECT_EQ(com->Dispatch().Get(), object.Get());
    }
    EXPECT_EQ(LiveObjectCount(), 0) << "a conversion kept a reference";
}

// A SAFEARRAY of objects: each element keeps its identity and Nothing stays Nothing, and
// no element keeps a reference once the values are gone.
TEST(VariantConversion, ArraysOfObjectsKeepEachObjectAndNothing) {
    struct Empty : DispatchObject<> {
        std::span<const Member> Members() const override { return {}; }
        Variant Call(DISPID, WORD, const InvokeArgs&) override { return {}; }
        bool Answers(REFIID) const override { return false; }
    };
    {
        ComPtr<Empty> first = DispatchObject<>::Make<Empty>(), second = DispatchObject<>::Make<Empty>();
        auto wrap = [](IDispatch* object) {
            return Variant(std::make_shared<ComObject>(ComPtr<IDispatch>(object)));
        };
        for (VARTYPE type : {VARTYPE(VT_DISPATCH), VARTYPE(VT_VARIANT)}) {
            auto objects = std::make_shared<Array>(
                type, 1,
                std::vector<Variant>{wrap(first.Get()), Variant(std::shared_ptr<support::Object>()),
                                     wrap(second.Get())});
            ComVariant com{Variant(objects)};
            EXPECT_EQ(V_VT(&com.Get()), VT_ARRAY | type);
            Variant back = FromVariant(com.Get());
            const Array* array = ArrayIn(back);
            ASSERT_NE(array, nullptr);
            ASSERT_EQ(array->items.size(), 3u);
            auto dispatchAt = [&](std::size_t i) {
                auto* object = dynamic_cast<const ComObject*>(array->items[i].ToObject().get());
                return object ? object->Dispatch().Get() : nullptr;
            };
            EXPECT_EQ(dispatchAt(0), static_cast<IDispatch*>(first.Get()));
            EXPECT_EQ(array->items[1].ToObject(), nullptr);
            EXPECT_EQ(dispatchAt(2), static_cast<IDispatch*>(second.Get()));
        }
    }
    EXPECT_EQ(LiveObjectCount(), 0) << "an array kept a reference";
}

TEST(VariantConversion, OneDimensionalArraysKeepTypeBoundsAndItems) {
    auto doubles = std::make_shared<Array>(VT_R8, 1, std::vector<Variant>{1.5, std::int32_t(2)});
    ComVariant com{Variant(doubles)};
    EXPECT_EQ(V_VT(&com.Get()), VT_ARRAY | VT_R8);
    Variant value = FromVariant(com.Get());
    const Array* back = ArrayIn(value);
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->elementType, VT_R8);
    EXPECT_EQ(back->lowerBound, 1);
    EXPECT_EQ(back->items, (std::vector<Variant>{1.5, 2.0}));  // converted to the element type

    auto mixed = std::make_shared<Array>(VT_VARIANT, 0, std::vector<Variant>{"a\xC3\xA9", true, Variant()});
    Variant mixedValue = RoundTrip(Variant(mixed));
    const Array* mixedBack = ArrayIn(mixedValue);
    ASSERT_NE(mixedBack, nullptr);
    EXPECT_EQ(mixedBack->items, mixed->items);

    auto texts = std::make_shared<Array>(VT_BSTR, 0, std::vector<Variant>{"x", "y\xC3\xA9"});
    Variant textsValue = RoundTrip(Variant(texts));
    const Array* textsBack = ArrayIn(textsValue);
    ASSERT_NE(textsBack, nullptr);
    EXPECT_EQ(textsBack->items, texts->items);

    // An element the array's type cannot hold is refused rather than truncated.
    auto bad = std::make_shared<Array>(VT_I2, 0, std::vector<Variant>{std::int32_t(100000)});
    EXPECT_NE(ErrorNumber([&] { ComVariant refused{Variant(bad)}; }), 0);

    SAFEARRAYBOUND bounds[2] = {{2, 0}, {2, 0}};
    SAFEARRAY* square = SafeArrayCreate(VT_I4, 2, bounds);
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_ARRAY | VT_I4;
    V_ARRAY(&v) = square;
    EXPECT_EQ(ErrorNumber([&] { FromVariant(v); }), support::errors::kTypeMismatch);
    VariantClear(&v);
}

}  // namespace
}  // namespace win::com
